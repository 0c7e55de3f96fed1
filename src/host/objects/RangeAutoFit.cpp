#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <string_view>

#include "host/model/ColumnWidth.h"
#include "host/model/TextWidth.h"
#include "host/objects/CellReader.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

constexpr double points_per_pixel = 0.75;  // at 96 dpi
constexpr double tallest_row = 409.5;      // points
constexpr double widest_column = 255;      // characters

// The height that a line of text takes, pixels: what Excel gives the usual fonts, within a pixel.
double line_pixels(const Font& font) {
    const bool roomy = font.name == "Calibri" || font.name == "Cambria" || font.name.starts_with("Aptos");
    return std::round(font.size / points_per_pixel * (roomy ? 1.22 : 1.15)) + 2;
}

// How many lines a text takes that breaks between words, and inside one that is too long.
int wrapped_lines(std::string_view text, const Font& font, double width) {
    int lines = 0;
    while (true) {
        const std::size_t end = text.find('\n');
        std::string_view paragraph = text.substr(0, end);
        double used = 0;
        ++lines;
        while (!paragraph.empty()) {
            const std::size_t space = paragraph.find(' ');
            const std::size_t length = space == std::string_view::npos ? paragraph.size() : space + 1;
            const double word = text_pixels(paragraph.substr(0, length), font);
            if (used > 0 && used + word > width) {
                ++lines;
                used = 0;
            }
            for (used += word; width > 0 && used > width; used -= width) ++lines;
            paragraph.remove_prefix(length);
        }
        if (end == std::string_view::npos) return lines;
        text.remove_prefix(end + 1);
    }
}

}  // namespace

void RangeObject::auto_fit() {
    constexpr std::string_view member = "Range.AutoFit";
    Sheet& sheet = cells_.sheet();
    const auto all = [&](bool (Area::*whole)() const) {
        return std::ranges::all_of(cells_.areas(), [&](const Area& area) { return (area.*whole)(); });
    };
    const bool rows = unit_ == Unit::Rows || (unit_ == Unit::Cells && all(&Area::whole_rows));
    if (!rows && unit_ != Unit::Columns && !all(&Area::whole_columns))
        refuse(member, "rows or columns fit their contents, not blocks of cells");
    if (sheet.protection().on && !(rows ? sheet.protection().format_rows : sheet.protection().format_columns))
        refuse(member, "the sheet '" + sheet.name() + "' is protected");
    for (const Area& area : cells_.areas()) rows ? fit_rows(area) : fit_columns(area);
    cells_.changed();
}

// A row is as tall as the tallest of its cells that hold something; one without any has the standard height. Merged
// cells do not count, and hidden rows stay hidden.
void RangeObject::fit_rows(const Area& area) {
    Sheet& sheet = cells_.sheet();
    const StyleTable& styles = cells_.styles();
    CellReader reader(cells_);
    std::map<std::int32_t, double> heights;  // pixels
    sheet.visit_cells(
        {area.first_row, 1, area.last_row, formula::max_columns}, false, [&](Position at, const Cell& cell) {
            if (cell.kind == CellKind::Blank || sheet.merge_at(at)) return;
            const CellFormat& format = styles.formats[cell.style];
            const Font& font = styles.fonts[format.font];
            const std::string text = reader.text(cell);
            double pixels = line_pixels(font);
            if (format.alignment.rotation == 90 || format.alignment.rotation == 180)
                pixels = text_pixels(text, font) + cell_padding;
            else if (format.alignment.wrap && cell.kind == CellKind::String)
                pixels = (pixels - 2) * wrapped_lines(text, font, sheet.column_pixels(at.column) - cell_padding) + 2;
            double& height = heights[at.row];
            height = std::max(height, pixels);
        });
    sheet.change_rows(area.first_row, area.last_row, [](RowFormat& row) {
        row.height = -1;
        row.custom_height = false;
    });
    for (const auto& [row, pixels] : heights) {
        const double points = std::min(std::round(pixels) * points_per_pixel, tallest_row);
        if (points == sheet.defaults().default_row_height) continue;
        if (points < sheet.defaults().default_row_height && !sheet.defaults().custom_default_height) continue;
        sheet.change_rows(row, row, [points](RowFormat& format) { format.height = points; });
    }
}

// A column is as wide as the widest of its texts that do not wrap; one without any keeps its width.
void RangeObject::fit_columns(const Area& area) {
    Sheet& sheet = cells_.sheet();
    const StyleTable& styles = cells_.styles();
    CellReader reader(cells_);
    std::map<std::int32_t, double> widths;  // pixels
    sheet.visit_cells(
        {1, area.first_column, formula::max_rows, area.last_column}, false, [&](Position at, const Cell& cell) {
            const CellFormat& format = styles.formats[cell.style];
            if (cell.kind == CellKind::Blank || format.alignment.wrap || sheet.merge_at(at)) return;
            double& width = widths[at.column];
            width = std::max(width, text_pixels(reader.text(cell), styles.fonts[format.font]) + cell_padding);
        });
    const std::int32_t digit = sheet.workbook().digit_pixels();
    for (const auto& [column, pixels] : widths) {
        if (sheet.columns().at(column).hidden) continue;
        const double characters = characters_of_pixels(static_cast<std::int32_t>(std::ceil(pixels)), digit);
        sheet.set_column_width(column, column, std::clamp(characters, 0.1, widest_column));
        sheet.columns().change(column, column, [](ColumnRun& run) { run.best_fit = true; });
    }
}

}  // namespace kestrune::host
