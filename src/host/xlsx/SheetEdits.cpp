#include "host/xlsx/SheetEdits.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "formula/A1.h"
#include "host/model/Workbook.h"
#include "host/xlsx/AreaText.h"
#include "host/xlsx/CellXml.h"
#include "host/xlsx/ColumnXml.h"

namespace kestrune::host {
namespace {

std::string number_text(double number) {
    std::string text;
    append_number(text, number);
    return text;
}

// Writes a yes or no where the file says something else; `usual` is what its absence means.
void set_flag(TextEdits& edits, const XmlElement& element, std::string_view name, bool value, bool usual) {
    if (element.flag(name, usual) == value) return;
    edits.set_attribute(element, name,
                        value == usual ? std::nullopt : std::optional<std::string_view>(value ? "1" : "0"));
}

std::uint64_t key_of(const Area& area) {
    return (static_cast<std::uint64_t>(area.first_row) << 34) ^ (static_cast<std::uint64_t>(area.first_column) << 20) ^
           (static_cast<std::uint64_t>(area.last_row) << 7) ^ static_cast<std::uint64_t>(area.last_column);
}

bool before(const Area& a, const Area& b) { return key_of(a) < key_of(b); }

// Characters that a column of standard width shows and stores, padding included.
double standard_width(Sheet& sheet) {
    if (sheet.defaults().default_column_width >= 0) return sheet.defaults().default_column_width;
    const int digit = std::max(sheet.workbook().digit_pixels(), 1);
    const int pixels = (sheet.defaults().base_column_width * digit + 5 + 7) / 8 * 8;
    return std::trunc(pixels * 256.0 / digit) / 256;
}

}  // namespace

XmlElement SheetEdits::child(std::string_view local_name) const {
    for (const auto& extent : layout.children) {
        const XmlElement element(text, extent.begin);
        if (element.local() == local_name) return element;
    }
    return {};
}

void SheetEdits::properties() const {
    const auto element = child("sheetPr");
    const auto outline = element ? element.child("outlinePr") : XmlElement();
    if (outline) {
        set_flag(edits, outline, "summaryBelow", sheet.defaults().summary_below, true);
        set_flag(edits, outline, "summaryRight", sheet.defaults().summary_right, true);
        return;
    }
    if (sheet.defaults().summary_below && sheet.defaults().summary_right) return;
    std::string source =
        fmt::format("<{}outlinePr{}{}/>", prefix(), sheet.defaults().summary_below ? "" : " summaryBelow=\"0\"",
                    sheet.defaults().summary_right ? "" : " summaryRight=\"0\"");
    if (!element) {
        add_child("sheetPr", fmt::format("<{0}sheetPr>{1}</{0}sheetPr>", prefix(), source));
    } else if (element.empty()) {
        edits.append_content(element, source);
    } else {
        const auto tab = element.child("tabColor");
        edits.insert(tab ? tab.end() : element.tag_end(), source);
    }
}

void SheetEdits::dimension(const std::optional<Area>& grown) const {
    if (!grown) return;
    const auto element = child("dimension");
    if (!element) return;
    const auto was = parse_area(element.value("ref"));
    if (!was || was->contains(*grown)) return;
    const Area now{std::min(was->first_row, grown->first_row), std::min(was->first_column, grown->first_column),
                   std::max(was->last_row, grown->last_row), std::max(was->last_column, grown->last_column)};
    edits.set_attribute(element, "ref", formula::area_text(now));
}

void SheetEdits::view() const {
    const SheetView& view = sheet.view();
    const auto views = child("sheetViews");
    const auto element = views ? views.child("sheetView") : XmlElement();
    if (!element) {
        std::string source = fmt::format("<{}sheetView", prefix());
        if (!view.show_gridlines) source += " showGridLines=\"0\"";
        if (!view.show_headings) source += " showRowColHeaders=\"0\"";
        if (!view.show_zeros) source += " showZeros=\"0\"";
        if (view.right_to_left) source += " rightToLeft=\"1\"";
        if (view.zoom != 100) source += fmt::format(" zoomScale=\"{0}\" zoomScaleNormal=\"{0}\"", view.zoom);
        source += " workbookViewId=\"0\"/>";
        if (views) {
            edits.set_content(views, source);
        } else {
            add_child("sheetViews", fmt::format("<{0}sheetViews>{1}</{0}sheetViews>", prefix(), source));
        }
        return;
    }
    set_flag(edits, element, "showGridLines", view.show_gridlines, true);
    set_flag(edits, element, "showRowColHeaders", view.show_headings, true);
    set_flag(edits, element, "showZeros", view.show_zeros, true);
    set_flag(edits, element, "rightToLeft", view.right_to_left, false);
    if (element.integer("zoomScale", 100) != view.zoom) {
        edits.set_attribute(element, "zoomScale", std::to_string(view.zoom));
        const auto mode = element.value("view");
        if (mode.empty() || mode == "normal")
            edits.set_attribute(element, "zoomScaleNormal", std::to_string(view.zoom));
    }
}

void SheetEdits::standard_sizes() const {
    std::uint8_t rows = 0;
    std::uint8_t columns = 0;
    for (const auto& [row, format] : sheet.row_formats()) rows = std::max(rows, format.outline_level);
    for (const auto& run : sheet.columns().runs()) columns = std::max(columns, run.outline_level);
    const auto element = child("sheetFormatPr");
    if (!element) {
        const bool usual = rows == 0 && columns == 0 && sheet.defaults().base_column_width == 8 &&
                           sheet.defaults().default_column_width < 0 && sheet.defaults().default_row_height == 15 &&
                           !sheet.defaults().custom_default_height && !sheet.defaults().zero_height;
        if (usual) return;
        std::string source = fmt::format("<{}sheetFormatPr", prefix());
        if (sheet.defaults().base_column_width != 8)
            source += fmt::format(" baseColWidth=\"{}\"", sheet.defaults().base_column_width);
        if (sheet.defaults().default_column_width >= 0)
            source += fmt::format(" defaultColWidth=\"{}\"", number_text(sheet.defaults().default_column_width));
        source += fmt::format(" defaultRowHeight=\"{}\"", number_text(sheet.defaults().default_row_height));
        if (sheet.defaults().custom_default_height) source += " customHeight=\"1\"";
        if (sheet.defaults().zero_height) source += " zeroHeight=\"1\"";
        if (rows != 0) source += fmt::format(" outlineLevelRow=\"{}\"", rows);
        if (columns != 0) source += fmt::format(" outlineLevelCol=\"{}\"", columns);
        add_child("sheetFormatPr", source + "/>");
        return;
    }
    const auto level = [&](std::string_view name, std::uint8_t value) {
        if (element.integer(name) == value) return;
        edits.set_attribute(element, name,
                            value == 0 ? std::nullopt : std::optional<std::string_view>(std::to_string(value)));
    };
    // Excel draws the outline's buttons only when these say how deep it is.
    if (sheet.rows_changed) level("outlineLevelRow", rows);
    if (sheet.columns().changed) level("outlineLevelCol", columns);
    if (!sheet.defaults().changed) return;
    if (element.integer("baseColWidth", 8) != sheet.defaults().base_column_width)
        edits.set_attribute(element, "baseColWidth", std::to_string(sheet.defaults().base_column_width));
    if (element.number("defaultColWidth", -1) != sheet.defaults().default_column_width) {
        const auto width = sheet.defaults().default_column_width >= 0
                               ? number_text(sheet.defaults().default_column_width)
                               : std::string();
        edits.set_attribute(element, "defaultColWidth",
                            width.empty() ? std::nullopt : std::optional<std::string_view>(width));
    }
    if (element.number("defaultRowHeight", 15) != sheet.defaults().default_row_height)
        edits.set_attribute(element, "defaultRowHeight", number_text(sheet.defaults().default_row_height));
    set_flag(edits, element, "customHeight", sheet.defaults().custom_default_height, false);
    set_flag(edits, element, "zeroHeight", sheet.defaults().zero_height, false);
}

void SheetEdits::columns() const {
    const auto element = child("cols");
    struct Known {
        ColumnRun run;
        XmlElement source;
    };
    std::vector<Known> known;
    for (auto col = element ? element.first_child() : XmlElement(); col; col = col.next()) {
        if (const auto run = read_column_run(col, formats.in_file())) known.push_back({*run, col});
    }
    std::string source;
    for (ColumnRun run : sheet.columns().runs()) {
        run.style = formats(run.style);
        const auto same = std::find_if(known.begin(), known.end(), [&](const Known& one) {
            return one.run.first == run.first && one.run.last == run.last && one.run.same_format(run);
        });
        if (same != known.end()) {
            source += same->source.source();
        } else {
            append_column_run(source, prefix(), run, standard_width(sheet));
        }
    }
    if (element && source.empty()) {
        edits.remove(element.begin(), element.end() - element.begin());
    } else if (element) {
        edits.set_content(element, source);
    } else if (!source.empty()) {
        add_child("cols", fmt::format("<{0}cols>{1}</{0}cols>", prefix(), source));
    }
}

void SheetEdits::merges() const {
    std::vector<Area> wanted = sheet.merges();
    std::sort(wanted.begin(), wanted.end(), before);
    const auto element = child("mergeCells");
    std::vector<Area> there;
    std::size_t kept = 0;
    for (auto cell = element ? element.first_child() : XmlElement(); cell; cell = cell.next()) {
        const auto area = parse_area(cell.value("ref"));
        if (!area) continue;
        there.push_back(*area);
        if (std::binary_search(wanted.begin(), wanted.end(), *area, before)) {
            ++kept;
        } else if (!wanted.empty()) {
            edits.remove(cell.begin(), cell.end() - cell.begin());
        }
    }
    if (wanted.empty()) {
        if (element) edits.remove(element.begin(), element.end() - element.begin());
        return;
    }
    std::sort(there.begin(), there.end(), before);
    std::string source;
    std::size_t added = 0;
    for (const auto& area : sheet.merges()) {
        if (std::binary_search(there.begin(), there.end(), area, before)) continue;
        source += fmt::format("<{}mergeCell ref=\"{}\"/>", prefix(), formula::area_text(area));
        ++added;
    }
    if (!element) {
        add_child("mergeCells",
                  fmt::format("<{0}mergeCells count=\"{1}\">{2}</{0}mergeCells>", prefix(), added, source));
        return;
    }
    edits.append_content(element, source);
    if (element.attribute("count")) edits.set_attribute(element, "count", std::to_string(kept + added));
}

}  // namespace kestrune::host
