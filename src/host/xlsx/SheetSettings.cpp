#include "host/xlsx/SheetSettings.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>

#include "formula/A1.h"
#include "host/model/Workbook.h"
#include "host/xlsx/AreaText.h"
#include "host/xlsx/ColorXml.h"
#include "host/xlsx/ColumnXml.h"
#include "host/xlsx/ConditionalFormatXml.h"
#include "host/xlsx/XmlParser.h"

namespace kestrune::host {
namespace {

struct Reading {
    const Package& package;
    const std::string& part;
    Sheet& sheet;

    [[noreturn]] void fail(const XmlElement& element, std::string message) const {
        const auto place = place_of(element.document(), element.begin());
        throw package.error(part, std::move(message), place.line, place.column);
    }
};

void read_properties(const Reading& reading, const XmlElement& element) {
    if (const auto color = element.child("tabColor")) reading.sheet.defaults().tab_color = read_color(color);
    if (const auto outline = element.child("outlinePr")) {
        reading.sheet.defaults().summary_below = outline.flag("summaryBelow", true);
        reading.sheet.defaults().summary_right = outline.flag("summaryRight", true);
    }
}

void read_selection(SheetView& view, const XmlElement& element) {
    if (const auto cell = formula::parse_cell_reference(element.value("activeCell"))) view.active_cell = *cell;
    auto areas = parse_areas(element.value("sqref"));
    view.selection = areas && !areas->empty() ? *areas : std::vector<Area>{Area::cell(view.active_cell)};
}

std::int32_t frozen(const XmlElement& pane, std::string_view name, std::int32_t limit) {
    return static_cast<std::int32_t>(std::clamp(pane.number(name), 0.0, static_cast<double>(limit)));
}

void read_views(const Reading& reading, const XmlElement& element) {
    const auto first = element.child("sheetView");
    if (!first) return;
    SheetView& view = reading.sheet.view();
    view.show_gridlines = first.flag("showGridLines", true);
    view.show_headings = first.flag("showRowColHeaders", true);
    view.show_zeros = first.flag("showZeros", true);
    view.right_to_left = first.flag("rightToLeft");
    const auto zoom = first.integer("zoomScale", 100);
    view.zoom = zoom >= 10 && zoom <= 400 ? static_cast<std::int32_t>(zoom) : 100;
    std::string active_pane = "topLeft";
    if (const auto pane = first.child("pane")) {
        if (pane.attribute("activePane")) active_pane = pane.value("activePane");
        if (pane.value("state").starts_with("frozen")) {
            view.frozen_rows = frozen(pane, "ySplit", formula::max_rows);
            view.frozen_columns = frozen(pane, "xSplit", formula::max_columns);
        }
    }
    for (auto child = first.first_child(); child; child = child.next()) {
        if (child.local() != "selection") continue;
        const auto pane = child.attribute("pane");
        if ((pane ? pane->raw : "topLeft") == active_pane) read_selection(view, child);
    }
}

void read_standard_sizes(const Reading& reading, const XmlElement& element) {
    Sheet& sheet = reading.sheet;
    sheet.defaults().default_row_height = element.number("defaultRowHeight", sheet.defaults().default_row_height);
    sheet.defaults().default_column_width = element.number("defaultColWidth", -1);
    sheet.defaults().base_column_width =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(element.integer("baseColWidth", 8), 0, 255));
    sheet.defaults().custom_default_height = element.flag("customHeight");
    sheet.defaults().zero_height = element.flag("zeroHeight");
}

void read_columns(const Reading& reading, const XmlElement& element) {
    StyleTable& styles = reading.sheet.workbook().styles;
    for (auto col = element.first_child(); col; col = col.next()) {
        if (col.local() != "col") continue;
        const auto run = read_column_run(col, styles.formats_in_file);
        const auto named = col.integer("style");
        if (named > 0 && named < formula::max_rows)
            static_cast<void>(styles.format_of_file(static_cast<std::uint32_t>(named)));
        if (!run) {
            reading.fail(col, fmt::format("<col min=\"{}\" max=\"{}\"> is outside the sheet", col.value("min"),
                                          col.value("max")));
        }
        reading.sheet.columns().load(*run);
    }
}

void read_protection(const Reading& reading, const XmlElement& element) {
    SheetProtection& protection = reading.sheet.protection();
    protection.on = element.flag("sheet");
    // The file says what is locked.
    protection.format_cells = !element.flag("formatCells", true);
    protection.format_columns = !element.flag("formatColumns", true);
    protection.format_rows = !element.flag("formatRows", true);
    protection.insert_rows = !element.flag("insertRows", true);
    protection.insert_columns = !element.flag("insertColumns", true);
    protection.delete_rows = !element.flag("deleteRows", true);
    protection.delete_columns = !element.flag("deleteColumns", true);
}

void read_merges(const Reading& reading, const XmlElement& element) {
    auto& merges = reading.sheet.loaded_merges();
    for (auto cell = element.first_child(); cell; cell = cell.next()) {
        if (cell.local() != "mergeCell") continue;
        const auto area = parse_area(cell.value("ref"));
        if (!area)
            reading.fail(cell, fmt::format("<mergeCell ref=\"{}\"> is not an area of the sheet", cell.value("ref")));
        merges.push_back(*area);
    }
}

void read_conditions(const Reading& reading, const XmlElement& element) {
    auto format = read_conditional_format(element);
    if (!format) {
        reading.fail(element, fmt::format("<conditionalFormatting sqref=\"{}\"> is not a list of areas of the sheet",
                                          element.value("sqref")));
    }
    reading.sheet.conditional_formats().push_back(std::move(*format));
}

// A link to no cell of the sheet is nobody's, and leads nowhere; the file keeps it.
void read_hyperlinks(const Reading& reading, const XmlElement& element) {
    std::map<std::string, std::string, std::less<>> targets;
    for (const Relationship& relationship : reading.package.relationships(reading.part)) {
        if (relationship.is("hyperlink")) targets.emplace(relationship.id, relationship.written);
    }
    for (auto child = element.first_child(); child; child = child.next()) {
        if (child.local() != "hyperlink") continue;
        const auto area = parse_area(child.value("ref"));
        if (!area) continue;
        Hyperlink link{*area, {}, child.value("location"), child.value("tooltip"), child.value("display")};
        if (const auto target = targets.find(relationship_id(child)); target != targets.end()) {
            // What stands behind "#" is the place in the file that the address names.
            const std::size_t mark = link.sub_address.empty() ? target->second.find('#') : std::string::npos;
            link.address = target->second.substr(0, mark);
            if (mark != std::string::npos) link.sub_address = target->second.substr(mark + 1);
        }
        reading.sheet.hyperlinks().push_back(std::move(link));
    }
}

void read_extensions(const Reading& reading, const XmlElement& element) {
    const auto formats = extension_formats(element);
    if (!formats) return;
    for (auto child = formats.first_child(); child; child = child.next()) {
        if (auto format = read_extension_format(child))
            reading.sheet.conditional_formats().push_back(std::move(*format));
    }
}

struct Row {
    std::string_view name;
    void (*read)(const Reading&, const XmlElement&);
};

constexpr auto children = std::to_array<Row>({
    {"sheetPr", read_properties},
    {"sheetViews", read_views},
    {"sheetFormatPr", read_standard_sizes},
    {"cols", read_columns},
    {"sheetProtection", read_protection},
    {"mergeCells", read_merges},
    {"conditionalFormatting", read_conditions},
    {"hyperlinks", read_hyperlinks},
    {"extLst", read_extensions},
});

}  // namespace

void read_sheet_child(const Package& package, const std::string& part, const XmlElement& child, Sheet& sheet) {
    const auto local = child.local();
    for (const auto& row : children) {
        if (row.name == local) row.read({package, part, sheet}, child);
    }
}

}  // namespace kestrune::host
