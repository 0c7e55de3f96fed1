#include "host/xlsx/CellEdits.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

#include "formula/A1.h"
#include "host/model/Workbook.h"
#include "host/xlsx/CellXml.h"
#include "host/xlsx/XmlCharacters.h"

namespace kestrune::host {
namespace {

constexpr std::size_t ahead = 12;  // cells; as far as memory takes to answer

StyleId style_number(const XmlElement& element) {
    const auto attribute = element.attribute("s");
    StyleId style = 0;
    if (attribute) std::from_chars(attribute->raw.data(), attribute->raw.data() + attribute->raw.size(), style);
    return style;
}

}  // namespace

CellEdits::CellEdits(std::string_view text, Sheet& sheet, const SheetLayout& layout, const FileNumbers& formats,
                     TextEdits& edits)
    : text_(text),
      sheet_(sheet),
      layout_(layout),
      row_xml_{sheet.defaults().default_row_height, formats.in_file()},
      formats_(formats),
      edits_(edits) {
    if (layout.sheet_data >= 0)
        sheet_data_ = XmlElement(text, layout.children[static_cast<std::size_t>(layout.sheet_data)].begin);
    prefix_ = sheet_data_ ? sheet_data_.prefix() : XmlElement::root(text).prefix();
}

void CellEdits::run() {
    if (sheet_.cells_changed) {
        edit_cells();
        if (kept_cells_ < layout_.cells) remove_lost_cells();
    }
    if (sheet_.rows_changed) edit_rows();
    if (sheet_.cells_changed || sheet_.rows_changed) write_new_cells();
}

void CellEdits::edit_cells() {
    std::int32_t column = 0;
    for (const auto& cells : sheet_.cell_columns()) {
        ++column;
        if (!cells) continue;
        const auto& all = cells->cells;
        for (std::size_t i = 0; i < all.size(); ++i) {
            // Going down a column leaps through the text from row to row: what comes soon is fetched ahead.
            if (i + ahead < all.size()) __builtin_prefetch(text_.data() + all[i + ahead].source);
            const Cell& cell = all[i];
            const Position at{cell.row, column};
            if (cell.source == 0) {
                add_cell(at, cell);
            } else {
                ++kept_cells_;
                edit_cell(at, cell);
            }
        }
    }
}

void CellEdits::edit_cell(Position at, const Cell& cell) {
    const XmlElement element(text_, cell.source - 1);
    edit_style(element, formats_(cell.style));
    if ((cell.flags & Cell::content_changed) == 0) {
        if ((cell.flags & Cell::formula_moved) != 0 && cell.formula != 0) edit_formula(element, at, cell);
        return;
    }
    const bool had_formula = static_cast<bool>(element.child("f"));
    formulas_changed_ = formulas_changed_ || had_formula || cell.formula != 0;
    const CellXml xml = cell_xml(sheet_, at, cell, element.prefix());
    edits_.set_attribute(element, "t", xml.type.empty() ? std::nullopt : std::optional(xml.type));
    // What these point to described the old value.
    edits_.set_attribute(element, "cm", std::nullopt);
    edits_.set_attribute(element, "vm", std::nullopt);
    edits_.set_content(element, xml.content);
}

// The formula alone: the value stays as the file has it.
void CellEdits::edit_formula(const XmlElement& element, Position at, const Cell& cell) {
    const XmlElement child = element.child("f");
    if (!child) return;
    formulas_changed_ = true;
    const Formula& formula = sheet_.formulas()[cell.formula - 1];
    std::string text = formula.text;
    if (formula.kind == Formula::Kind::Normal || formula.kind == Formula::Kind::Shared) {
        const bool shared = child.value("t") == "shared";
        if (shared && (cell.flags & Cell::unshared) == 0 && formula.anchor == at) {
            edits_.set_attribute(child, "ref", formula::area_text(formula.reach));
        } else {
            for (const std::string_view name : {"t", "ref", "si"})
                if (shared) edits_.set_attribute(child, name, std::nullopt);
            text = sheet_.formula_at(at);
        }
    } else if (formula.attributes.empty()) {
        edits_.set_attribute(child, "ref", formula::area_text(formula.reach));
    } else {
        const std::string attributes = "<f " + formula.attributes + "/>";
        const XmlElement wanted = XmlElement::root(attributes);
        for (auto each = wanted.first_attribute(); each; each = wanted.attribute_after(each))
            edits_.set_attribute(child, each.name, each.value());
    }
    if (child.text() == text) return;
    if (needs_preserve(text)) edits_.set_attribute(child, "xml:space", "preserve");
    std::string escaped;
    append_escaped(escaped, text);
    edits_.set_content(child, escaped);
}

void CellEdits::edit_style(const XmlElement& element, StyleId style) {
    const StyleId written = style_number(element);
    // A number without a format shows the default one, and no format takes that number.
    const StyleId shown = written < row_xml_.formats ? written : 0;
    if (shown == style) return;
    if (style == 0) {
        edits_.set_attribute(element, "s", std::nullopt);
    } else {
        edits_.set_attribute(element, "s", std::to_string(style), "r");
    }
}

// Some cells of the file are gone from the sheet: those whose place no cell names.
void CellEdits::remove_lost_cells() {
    std::vector<std::uint32_t> kept;
    kept.reserve(static_cast<std::size_t>(kept_cells_));
    for (const auto& cells : sheet_.cell_columns()) {
        if (!cells) continue;
        for (const auto& cell : cells->cells) {
            if (cell.source != 0) kept.push_back(cell.source - 1);
        }
    }
    std::sort(kept.begin(), kept.end());
    for (const auto& row : layout_.rows) {
        const XmlElement element(text_, row.offset);
        bool lost = false;
        std::int32_t column = 0;
        for (auto child = element.first_child(); child; child = child.next()) {
            if (child.local() != "c") continue;
            const auto reference = child.attribute("r");
            const auto at = reference ? formula::parse_cell_reference(reference->raw) : std::nullopt;
            column = at ? at->column : column + 1;
            if (!std::binary_search(kept.begin(), kept.end(), static_cast<std::uint32_t>(child.begin()))) {
                formulas_changed_ = formulas_changed_ || child.child("f");
                edits_.remove(child.begin(), child.end() - child.begin());
                lost = true;
            } else if (lost) {
                if (!reference) give_reference(child, formula::cell_text({row.row, column}));
                lost = false;
            }
        }
    }
}

RowFormat CellEdits::format_of(std::int32_t row) const {
    const RowFormat* format = sheet_.row_format(row);
    if (format == nullptr) return {};
    RowFormat in_file = *format;
    in_file.style = formats_(in_file.style);
    return in_file;
}

void CellEdits::add_cell(Position at, const Cell& cell) {
    // A cell that looks and holds what its row or column says needs no place of its own.
    if (cell.kind == CellKind::Blank && cell.formula == 0) {
        const RowFormat* row = sheet_.row_format(at.row);
        const StyleId inherited = row != nullptr && row->has_style ? row->style : sheet_.columns().style_at(at.column);
        if (inherited == cell.style) return;
    }
    new_cells_.push_back({at, &cell});
    formulas_changed_ = formulas_changed_ || cell.formula != 0;
    const Area place = Area::cell(at);
    if (!grown_) grown_ = place;
    grown_ = Area{std::min(grown_->first_row, at.row), std::min(grown_->first_column, at.column),
                  std::max(grown_->last_row, at.row), std::max(grown_->last_column, at.column)};
}

void CellEdits::edit_rows() {
    const auto& rows = layout_.rows;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        // Of several elements for one row the last has its format.
        if (std::next(row) != rows.end() && std::next(row)->row == row->row) continue;
        row_xml_.edit(edits_, XmlElement(text_, row->offset), format_of(row->row));
    }
}

void CellEdits::give_reference(const XmlElement& element, const std::string& reference) {
    edits_.insert(element.name_end(), fmt::format(" r=\"{}\"", reference));
}

std::string CellEdits::cell_source(const NewCell& cell, std::string_view prefix) {
    std::string out("<");
    out.append(prefix).append("c r=\"").append(formula::cell_text(cell.at)).append("\"");
    if (const auto style = formats_(cell.cell->style); style != 0)
        out.append(" s=\"").append(std::to_string(style)).append("\"");
    const CellXml xml = cell_xml(sheet_, cell.at, *cell.cell, prefix);
    if (!xml.type.empty()) out.append(" t=\"").append(xml.type).append("\"");
    if (xml.content.empty()) {
        out += "/>";
        return out;
    }
    out.append(">").append(xml.content).append("</").append(prefix).append("c>");
    return out;
}

std::string CellEdits::row_source(std::int32_t row, const NewCell* first, const NewCell* last) {
    std::string out("<");
    out.append(prefix_).append("row r=\"").append(std::to_string(row)).append("\"");
    RowXml::append(out, format_of(row));
    if (first == last) {
        out += "/>";
        return out;
    }
    out += '>';
    for (; first != last; ++first) out += cell_source(*first, prefix_);
    out.append("</").append(prefix_).append("row>");
    return out;
}

void CellEdits::insert_into_row(std::size_t offset, const NewCell* first, const NewCell* last) {
    const XmlElement element(text_, offset);
    // spans is a hint to readers, and a wrong one misleads them.
    if (const auto spans = element.attribute("spans")) {
        std::int32_t low = 0;
        std::int32_t high = 0;
        const char* end = spans->raw.data() + spans->raw.size();
        const auto colon = std::from_chars(spans->raw.data(), end, low).ptr;
        if (colon != end) std::from_chars(colon + 1, end, high);
        if (first->at.column < low || (last - 1)->at.column > high)
            edits_.set_attribute(element, "spans", std::nullopt);
    }
    std::string cells;
    std::int32_t column = 0;
    for (auto child = element.first_child(); child && first != last; child = child.next()) {
        if (child.local() != "c") continue;
        const auto reference = child.attribute("r");
        const auto at = reference ? formula::parse_cell_reference(reference->raw) : std::nullopt;
        column = at ? at->column : column + 1;
        cells.clear();
        for (; first != last && first->at.column < column; ++first) cells += cell_source(*first, child.prefix());
        // A cell without a reference stands right behind its neighbour: nothing ever goes between the two.
        if (!cells.empty()) edits_.insert(child.begin(), cells);
    }
    cells.clear();
    for (; first != last; ++first) cells += cell_source(*first, element.prefix());
    edits_.append_content(element, cells);
}

void CellEdits::write_new_cells() {
    std::sort(new_cells_.begin(), new_cells_.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
    // Rows with a format of their own and without cells stand among them.
    std::vector<std::int32_t> formatted;
    if (sheet_.rows_changed) {
        for (const auto& [row, format] : sheet_.row_formats()) {
            if (!format.plain()) formatted.push_back(row);
        }
    }
    std::string at_end;
    std::string pending;
    std::size_t pending_place = 0;
    const auto flush = [&] {
        if (pending.empty()) return;
        edits_.insert(pending_place, pending);
        pending.clear();
    };
    auto format = formatted.begin();
    auto known = layout_.rows.begin();
    const NewCell* cell = new_cells_.data();
    const NewCell* const end = cell + new_cells_.size();
    while (cell != end || format != formatted.end()) {
        const auto row = std::min(cell != end ? cell->at.row : formula::max_rows + 1,
                                  format != formatted.end() ? *format : formula::max_rows + 1);
        const NewCell* last = std::find_if(cell, end, [&](const NewCell& one) { return one.at.row != row; });
        if (format != formatted.end() && *format == row) ++format;
        known =
            std::lower_bound(known, layout_.rows.end(), row, [](const auto& a, std::int32_t r) { return a.row < r; });
        if (known != layout_.rows.end() && known->row == row) {
            if (cell != last) insert_into_row(known->offset, cell, last);
        } else if (known == layout_.rows.end()) {
            at_end += row_source(row, cell, last);
        } else {
            if (!pending.empty() && pending_place != known->offset) flush();
            if (pending.empty()) {
                pending_place = known->offset;
                const XmlElement next(text_, known->offset);
                if (!next.attribute("r")) give_reference(next, std::to_string(known->row));
            }
            pending += row_source(row, cell, last);
        }
        cell = last;
    }
    flush();
    if (at_end.empty()) return;
    if (!sheet_data_) {
        insert_child(edits_, text_, layout_.children, "sheetData",
                     fmt::format("<{0}sheetData>{1}</{0}sheetData>", prefix_, at_end), worksheet_order);
    } else if (sheet_data_.empty()) {
        edits_.append_content(sheet_data_, at_end);
    } else {
        // The end tag stands right before the end of the extent; nothing in between needs to be read again.
        const auto stop = layout_.children[static_cast<std::size_t>(layout_.sheet_data)].end;
        edits_.insert(text_.rfind("</", stop - 1), at_end);
    }
}

}  // namespace kestrune::host
