#include "host/xlsx/structure/MovedSheet.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>

#include "formula/A1.h"
#include "host/xlsx/AreaText.h"
#include "host/xlsx/ConditionalFormatXml.h"
#include "host/xlsx/package/XmlTree.h"
#include "host/xlsx/structure/Places.h"

namespace kestrune::host {
namespace {

using formula::Edit;

// Children whose places the sheet itself tells.
constexpr auto written_from_sheet = std::to_array<std::string_view>({"cols", "mergeCells", "sheetFormatPr"});

// Where rows or columns of one sheet stand after edits of it, one after the other.
class Lines {
  public:
    Lines(std::span<const Edit> edits, std::string_view sheet, bool rows) {
        for (const Edit& edit : edits) {
            if (edit.of_rows() == rows && formula::means_edited_sheet({}, sheet, edit)) edits_.push_back(&edit);
        }
    }
    [[nodiscard]] bool any() const { return !edits_.empty(); }
    // 0 when it is gone.
    [[nodiscard]] std::int32_t now(std::int32_t line) const {
        for (const Edit* edit : edits_) {
            std::int32_t last = line;
            if (!formula::adjust_span(line, last, *edit)) return 0;
        }
        return line;
    }

  private:
    std::vector<const Edit*> edits_;
};

class SheetMover {
  public:
    SheetMover(const SheetToMove& sheet, std::span<const Edit> edits)
        : sheet_(sheet),
          text_(sheet.text),
          layout_(sheet.layout),
          edits_(edits),
          rows_(edits, sheet.name, true),
          columns_(edits, sheet.name, false) {}

    MovedSheet run() {
        out_.text.reserve(text_.size() + 4096);
        out_.layout.sheet_data = -1;
        std::size_t copied = 0;
        for (std::size_t i = 0; i < layout_.children.size(); ++i) {
            const auto& extent = layout_.children[i];
            out_.text.append(text_, copied, extent.begin - copied);
            copied = extent.end;
            const std::size_t begin = out_.text.size();
            if (static_cast<std::int32_t>(i) == layout_.sheet_data)
                move_data(extent);
            else
                move_child(XmlElement(text_, extent.begin));
            if (out_.text.size() == begin) continue;
            if (static_cast<std::int32_t>(i) == layout_.sheet_data)
                out_.layout.sheet_data = static_cast<std::int32_t>(out_.layout.children.size());
            out_.layout.children.push_back(
                {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(out_.text.size())});
        }
        out_.text.append(text_, copied);
        std::ranges::sort(out_.cells);
        return std::move(out_);
    }

  private:
    void move_data(const SheetLayout::Extent& extent) {
        const std::uint32_t delta = static_cast<std::uint32_t>(out_.text.size()) - extent.begin;  // may wrap, and back
        if (!rows_.any() && !columns_.any()) {
            out_.text.append(text_, extent.begin, extent.end - extent.begin);
            out_.layout.rows = layout_.rows;
            for (auto& row : out_.layout.rows) row.offset += delta;
            out_.layout.cells = layout_.cells;
            out_.shift = delta;
            return;
        }
        const XmlElement data(text_, extent.begin);
        if (data.empty()) {
            out_.text.append(text_, extent.begin, extent.end - extent.begin);
            return;
        }
        out_.text.append(text_, extent.begin, data.tag_end() - extent.begin);
        for (const auto& row : layout_.rows) move_row(row);
        const std::size_t stop = text_.rfind("</", extent.end - 1);
        out_.text.append(text_, stop, extent.end - stop);
    }

    void move_row(const SheetLayout::Row& row) {
        const std::int32_t now = rows_.now(row.row);
        if (now == 0) return;
        const XmlElement element(text_, row.offset);
        out_.layout.rows.push_back({now, static_cast<std::uint32_t>(out_.text.size())});
        out_.text.append(text_, element.begin(), element.name_end() - element.begin());
        out_.text.append(" r=\"").append(std::to_string(now)).append("\"");
        for (auto attribute = element.first_attribute(); attribute; attribute = element.attribute_after(attribute)) {
            // spans only helps readers, and a wrong one misleads them.
            if (attribute.name == "r" || (columns_.any() && attribute.name == "spans")) continue;
            out_.text += ' ';
            out_.text.append(text_, attribute.begin, attribute.end - attribute.begin);
        }
        if (element.empty()) {
            out_.text += "/>";
            return;
        }
        out_.text += '>';
        std::size_t copied = element.tag_end();
        std::int32_t column = 0;
        for (auto child = element.first_child(); child; child = child.next()) {
            if (child.local() != "c") continue;
            out_.text.append(text_, copied, child.begin() - copied);
            copied = child.end();
            const auto reference = child.attribute("r");
            const auto at = reference ? formula::parse_cell_reference(reference->raw) : std::nullopt;
            column = at ? at->column : column + 1;
            move_cell(child, reference, now, columns_.now(column));
        }
        out_.text.append(text_, copied, element.end() - copied);
    }

    void move_cell(const XmlElement& cell, const std::optional<XmlAttribute>& reference, std::int32_t row,
                   std::int32_t column) {
        if (column == 0) return;
        ++out_.layout.cells;
        out_.cells.emplace_back(static_cast<std::uint32_t>(cell.begin()), static_cast<std::uint32_t>(out_.text.size()));
        const std::string place = formula::cell_text({row, column});
        if (reference) {
            const auto raw = static_cast<std::size_t>(reference->raw.data() - text_.data());
            out_.text.append(text_, cell.begin(), raw - cell.begin()).append(place);
            const std::size_t behind = raw + reference->raw.size();
            out_.text.append(text_, behind, cell.end() - behind);
        } else {
            out_.text.append(text_, cell.begin(), cell.name_end() - cell.begin());
            out_.text.append(" r=\"").append(place).append("\"");
            out_.text.append(text_, cell.name_end(), cell.end() - cell.name_end());
        }
    }

    void move_child(const XmlElement& child) {
        const std::string_view source = child.source();
        if (std::ranges::find(written_from_sheet, child.local()) != written_from_sheet.end()) {
            out_.text += source;
            return;
        }
        pugi::xml_document tree = parse_xml_tree(source, sheet_.file, sheet_.part);
        bool changed = drop_lost_tables(tree.document_element());
        for (const Edit& edit : edits_) {
            Places places(edit, sheet_.name);
            places.move(tree);
            changed = changed || places.changed();
            if (!tree.document_element()) return;
        }
        if (changed && Places::means_nothing(tree.document_element())) return;
        if (!changed) {
            out_.text += source;
            return;
        }
        const std::size_t begin = out_.text.size();
        out_.text += write_xml_fragment(tree);
        note_rules(child, XmlElement(out_.text, begin));
    }

    // Tables that went with their cells.
    bool drop_lost_tables(pugi::xml_node element) {
        if (local_name(element.name()) != "tableParts") return false;
        std::vector<pugi::xml_node> lost;
        for (const pugi::xml_node table : element.children()) {
            for (const pugi::xml_attribute attribute : table.attributes()) {
                if (local_name(attribute.name()) == "id" && !sheet_.has_table(attribute.value())) lost.push_back(table);
            }
        }
        for (const pugi::xml_node table : lost) element.remove_child(table);
        const auto left = std::ranges::distance(element.children());
        if (!lost.empty() && element.attribute("count")) element.attribute("count").set_value(left);
        return !lost.empty();
    }

    // Elements with the same rules before and after, in the same order; what lost its cells is left out.
    void note_rules(const XmlElement& before, const XmlElement& after) {
        if (before.local() == "conditionalFormatting") {
            note_list(before, after);
        } else if (before.local() == "extLst") {
            const auto old_formats = extension_formats(before);
            const auto new_formats = extension_formats(after);
            if (!old_formats || !new_formats) return;
            auto present = new_formats.first_child();
            for (auto old = old_formats.first_child(); old && present; old = old.next()) {
                const auto format = read_extension_format(old);
                if (format && !left_of(format->areas)) continue;
                out_.rules.emplace_back(old.source(), present.source());
                note_list(old, present);
                present = present.next();
            }
        }
    }

    void note_list(const XmlElement& before, const XmlElement& after) {
        auto present = after.first_child();
        for (auto old = before.first_child(); old && present; old = old.next(), present = present.next())
            out_.rules.emplace_back(old.source(), present.source());
    }

    [[nodiscard]] bool left_of(std::vector<formula::Area> areas) const {
        for (const Edit& edit : edits_) {
            if (formula::means_edited_sheet({}, sheet_.name, edit)) areas = formula::adjust_areas(areas, edit);
        }
        return !areas.empty();
    }

    const SheetToMove& sheet_;
    std::string_view text_;
    const SheetLayout& layout_;
    std::span<const Edit> edits_;
    Lines rows_;
    Lines columns_;
    MovedSheet out_;
};

// Children of a worksheet that hold no place, or only such as are known how to move (ECMA-376 18.3.1.99).
constexpr auto known_children = std::to_array<std::string_view>({"sheetPr",
                                                                 "dimension",
                                                                 "sheetViews",
                                                                 "sheetFormatPr",
                                                                 "cols",
                                                                 "sheetData",
                                                                 "sheetCalcPr",
                                                                 "sheetProtection",
                                                                 "protectedRanges",
                                                                 "scenarios",
                                                                 "autoFilter",
                                                                 "sortState",
                                                                 "dataConsolidate",
                                                                 "customSheetViews",
                                                                 "mergeCells",
                                                                 "phoneticPr",
                                                                 "conditionalFormatting",
                                                                 "dataValidations",
                                                                 "hyperlinks",
                                                                 "printOptions",
                                                                 "pageMargins",
                                                                 "pageSetup",
                                                                 "headerFooter",
                                                                 "rowBreaks",
                                                                 "colBreaks",
                                                                 "customProperties",
                                                                 "cellWatches",
                                                                 "ignoredErrors",
                                                                 "smartTags",
                                                                 "drawing",
                                                                 "legacyDrawing",
                                                                 "legacyDrawingHF",
                                                                 "drawingHF",
                                                                 "picture",
                                                                 "oleObjects",
                                                                 "controls",
                                                                 "webPublishItems",
                                                                 "tableParts",
                                                                 "extLst",
                                                                 "AlternateContent"});

// Attributes that would name a place in an extension that nobody here knows.
bool names_place(const XmlElement& element) {
    for (const std::string_view name : {"ref", "sqref", "r", "cell", "range"}) {
        const auto attribute = element.attribute(name);
        if (attribute && parse_areas(attribute->raw)) return true;
    }
    for (auto child = element.first_child(); child; child = child.next())
        if (names_place(child)) return true;
    return false;
}

}  // namespace

MovedSheet move_sheet(const SheetToMove& sheet, std::span<const formula::Edit> edits) {
    return SheetMover(sheet, edits).run();
}

void take_places(Sheet& sheet, const MovedSheet& moved) {
    for (const auto& column : sheet.cell_columns()) {
        if (!column) continue;
        for (Cell& cell : column->cells) {
            if (cell.source == 0) continue;
            if (moved.shift) {
                cell.source += *moved.shift;
                continue;
            }
            const auto place = std::ranges::lower_bound(moved.cells, cell.source - 1, {},
                                                        &std::pair<std::uint32_t, std::uint32_t>::first);
            const bool found = place != moved.cells.end() && place->first == cell.source - 1;
            cell.source = found ? place->second + 1 : 0;
        }
    }
    std::map<std::string_view, std::string_view> rules(moved.rules.begin(), moved.rules.end());
    const auto renew = [&](std::string& source) {
        if (const auto rule = rules.find(source); rule != rules.end()) source = rule->second;
    };
    if (rules.empty()) return;
    for (ConditionalFormat& format : sheet.conditional_formats()) {
        renew(format.source);
        for (ConditionalRule& rule : format.rules) renew(rule.source);
    }
}

std::string unmovable_in(std::string_view text, const SheetLayout& layout) {
    for (const auto& extent : layout.children) {
        const XmlElement child(text, extent.begin);
        if (std::ranges::find(known_children, child.local()) == known_children.end())
            return fmt::format("<{}> is not known here", child.name());
        if (child.local() != "extLst") continue;
        for (auto extension = child.first_child(); extension; extension = extension.next()) {
            if (names_place(extension))
                return fmt::format("the extension {} names cells in a way not known here", extension.value("uri"));
        }
    }
    return {};
}

}  // namespace kestrune::host
