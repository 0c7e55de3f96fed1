#include "host/objects/SheetMeasures.h"

#include <optional>

#include "host/model/ColumnWidth.h"
#include "host/model/Workbook.h"
#include "host/objects/FilledCells.h"
#include "host/objects/RowsOf.h"

namespace kestrune::host {
namespace {

constexpr double points_per_pixel = 0.75;  // at 96 dpi

}  // namespace

double rows_height(Sheet& sheet, std::int32_t first, std::int32_t last) {
    double points = 0;
    visit_row_runs(sheet, first, last, [&](std::int32_t from, std::int32_t to) {
        points += sheet.row_height(from) * (to - from + 1);
        return true;
    });
    return points;
}

double columns_width(Sheet& sheet, std::int32_t first, std::int32_t last) {
    if (first > last) return 0;
    double pixels = 0;
    sheet.columns().visit(first, last, [&](const ColumnRun& run) {
        pixels += static_cast<double>(sheet.column_pixels(run.first)) * (run.last - run.first + 1);
    });
    return pixels * points_per_pixel;
}

void show_rows(Sheet& sheet, std::int32_t first, std::int32_t last, bool shown) {
    sheet.change_rows(first, last, [&](RowFormat& row) {
        row.hidden = !shown;
        if (shown && row.height == 0) row.height = -1;
    });
}

void show_columns(Sheet& sheet, std::int32_t first, std::int32_t last, bool shown) {
    sheet.columns().change(first, last, [&](ColumnRun& run) {
        run.hidden = !shown;
        if (shown && run.width == 0) run.width = -1;
    });
}

double standard_width(Sheet& sheet) {
    sheet.ensure_loaded();
    return characters_of_pixels(sheet.default_column_pixels(), sheet.workbook().digit_pixels());
}

void set_standard_width(Sheet& sheet, double characters) {
    sheet.ensure_loaded();
    const std::int32_t digit = sheet.workbook().digit_pixels();
    sheet.defaults().default_column_width = stored_width_of_pixels(pixels_of_characters(characters, digit), digit);
    sheet.defaults().changed = true;
}

void keep_first_content(Sheet& sheet, const Area& area) {
    if (filled(sheet, area.top_left())) return;
    std::optional<Position> first;
    sheet.visit_cells(area, false, [&](Position at, const Cell& cell) {
        const bool holds = cell.kind != CellKind::Blank || cell.formula != 0;
        if (holds && (!first || at < *first)) first = at;
    });
    if (!first) return;
    std::string formula = sheet.formula_at(*first);
    if (formula.empty()) {
        sheet.set_content(area.top_left(), sheet.content_at(*first));
    } else {
        sheet.set_formula(area.top_left(), std::move(formula));
    }
}

}  // namespace kestrune::host
