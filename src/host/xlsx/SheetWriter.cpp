#include "host/xlsx/SheetWriter.h"

#include "host/model/Workbook.h"
#include "host/xlsx/CellEdits.h"
#include "host/xlsx/SheetEdits.h"

namespace kestrune::host {

void use_formats(Sheet& sheet, FileNumbers& formats) {
    for (const auto& cells : sheet.cell_columns()) {
        if (!cells) continue;
        for (const auto& cell : cells->cells) formats.use(cell.style);
    }
    for (const auto& [row, format] : sheet.row_formats()) formats.use(format.style);
    for (const auto& run : sheet.columns().runs()) formats.use(run.style);
}

SheetText write_sheet(std::string text, Sheet& sheet, const SheetLayout& layout, const FileNumbers& formats) {
    open_root(text);
    TextEdits edits;
    const SheetEdits part{text, sheet, layout, formats, edits};
    CellEdits cells(text, sheet, layout, formats, edits);
    // Children that the file lacks go in one after the other, so the order here is that of the schema.
    if (sheet.defaults().changed) part.properties();
    if (sheet.view().changed) part.view();
    if (sheet.defaults().changed || sheet.rows_changed || sheet.columns().changed) part.standard_sizes();
    if (sheet.columns().changed) part.columns();
    cells.run();
    part.dimension(cells.grown());
    if (sheet.merges_changed) part.merges();
    if (sheet.conditional_formats_changed) part.conditional_formats();
    return {edits.apply(text), cells.formulas_changed()};
}

}  // namespace kestrune::host
