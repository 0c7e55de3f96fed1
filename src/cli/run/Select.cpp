#include "cli/run/Select.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "automation/Conversion.h"
#include "cli/Failure.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"
#include "formula/Selection.h"
#include "formula/SheetName.h"

namespace kestrune::cli {
namespace {

using automation::AutomationError;

excel::Worksheet sheet_named(OpenWorkbook& book, const std::string& name) {
    const host::Sheet* sheet = book.model().sheet(name);
    if (!sheet) {
        std::vector<std::string> names;
        for (const auto& known : book.model().sheets()) names.push_back(known->name());
        throw Failure(
            fmt::format("{}: there is no sheet '{}' (it has: {})", book.model().name, name, fmt::join(names, ", ")));
    }
    if (sheet->kind() != host::SheetKind::Worksheet) {
        throw Failure(fmt::format("{}: '{}' is a chart, and has no cells", book.model().name, sheet->name()));
    }
    return book.application().ActiveWorkbook().Worksheets().Item(name);
}

excel::Worksheet active_worksheet(OpenWorkbook& book) {
    const automation::ObjectRef active = book.application().ActiveSheet();
    if (!excel::Worksheet::is(active)) throw Failure(fmt::format("{}: no worksheet is active", book.model().name));
    return excel::Worksheet(active);
}

}  // namespace

excel::Range find_cells(OpenWorkbook& book, const std::string& target) {
    const auto parsed = formula::parse_selection(target);
    if (const auto* selection = std::get_if<formula::Selection>(&parsed)) {
        const excel::Worksheet sheet = selection->sheet ? sheet_named(book, *selection->sheet) : active_worksheet(book);
        return sheet.Range(formula::selection_text({std::nullopt, selection->areas}));
    }
    const auto& error = std::get<formula::SelectionError>(parsed);
    if (error.kind != formula::SelectionError::Kind::not_a_reference) {
        throw Failure(fmt::format("{}: {}", book.model().name, error.message));
    }
    try {
        return active_worksheet(book).Range(target);
    } catch (const AutomationError&) {
        throw Failure(
            fmt::format("{}: '{}' is neither a reference nor a name that stands for cells", book.model().name, target));
    }
}

void select_cells(OpenWorkbook& book, const std::string& target) {
    book.activate();
    const excel::Range cells = find_cells(book, target);
    const excel::Worksheet sheet = cells.Worksheet();
    if (sheet.Visible() != excel::xlSheetVisible) {
        throw Failure(
            fmt::format("{}: sheet '{}' is hidden, so nothing on it can be selected", book.model().name, sheet.Name()));
    }
    sheet.Activate();
    cells.Select();
}

std::string selection_text(OpenWorkbook& book) {
    const automation::ObjectRef selection = book.application().Selection();
    if (!excel::Range::is(selection)) return "no cells";
    const excel::Range range(selection);
    std::string sheet = range.Worksheet().Name();
    // A command may have gone to another workbook.
    const std::string workbook = book.application().ActiveWorkbook().Name();
    if (workbook != book.model().name) sheet = fmt::format("[{}]{}", workbook, sheet);
    return fmt::format("{}!{}", formula::quoted_sheet(sheet), range.Address(false, false, excel::xlA1, false));
}

}  // namespace kestrune::cli
