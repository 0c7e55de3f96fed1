#include "host/objects/ContentWriter.h"

#include <algorithm>
#include <optional>

#include "formula/Convert.h"
#include "formula/FormulaCheck.h"
#include "formula/Lexer.h"
#include "formula/Shift.h"
#include "host/objects/ArrayFormulas.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

using automation::Array;
using automation::Value;

// More than this is a sheet's worth of cells, which nobody means to fill one by one.
constexpr std::int64_t most_cells = 32'000'000;

// Whether a formula (without "=") speaks of the table that it stands in: "[Sales]", "[@Tax]".
bool names_own_table(std::string_view text, formula::Notation notation) {
    if (text.find('[') == std::string_view::npos) return false;
    formula::Lexer lexer(text, notation);
    for (formula::Token token = lexer.next(); token.kind != formula::TokenKind::end; token = lexer.next()) {
        if (token.kind == formula::TokenKind::structured && token.text(text).starts_with('[')) return true;
    }
    return false;
}

// The element of an array for a place in the range, counted from 0; null where there is none.
class Elements {
  public:
    explicit Elements(const Array& array) {
        const bool flat = array.dimensions() == 1;
        rows_ = flat ? 1 : array.bound(0).count;
        columns_ = array.bound(flat ? 0 : 1).count;
    }

    [[nodiscard]] std::int32_t rows() const { return rows_; }
    [[nodiscard]] std::int32_t columns() const { return columns_; }

    [[nodiscard]] std::ptrdiff_t index(std::int32_t row, std::int32_t column) const {
        if (rows_ == 1) row = 0;
        if (columns_ == 1) column = 0;
        if (row >= rows_ || column >= columns_) return -1;
        return std::ptrdiff_t{row} * columns_ + column;
    }

  private:
    std::int32_t rows_ = 0;
    std::int32_t columns_ = 0;
};

}  // namespace

ContentWriter::ContentWriter(std::string_view member, const CellRange& cells, formula::Notation notation)
    : member_(member), cells_(cells), rules_{notation, cells.workbook().date1904} {
    for (const Area& merge : cells.sheet().merges()) {
        const auto touches = [&](const Area& area) { return area.intersection(merge).has_value(); };
        if (std::ranges::any_of(cells.areas(), touches)) merges_.push_back(merge);
    }
}

void ContentWriter::require_writable() const {
    cells_.require_content_allowed(member_);
    for (const Area& area : cells_.areas()) cells_.sheet().require_whole_arrays(area);
}

void ContentWriter::clear_arrays() const {
    for (const Area& area : cells_.areas()) {
        if (area.single_cell()) continue;
        for (const Formula& array : arrays_in(cells_.sheet(), area)) cells_.sheet().clear_content(array.reach);
    }
}

void ContentWriter::write(const Value& value) {
    require_writable();
    if (const Array* array = value.array()) {
        write_array(*array);
    } else {
        write_scalar(value);
    }
    cells_.content_changed();
}

bool ContentWriter::is_text(StyleId style) const {
    const StyleTable& styles = cells_.styles();
    return styles.number_format(styles.formats[style].number_format) == "@";
}

bool ContentWriter::covered(Position at) const {
    return std::ranges::any_of(merges_,
                               [&](const Area& merge) { return merge.contains(at) && at != merge.top_left(); });
}

CellEntry ContentWriter::read(const Value& value, bool as_text) const {
    return as_text ? text_entry_of(member_, value, rules_) : entry_of(member_, value, rules_);
}

void ContentWriter::require_table(const CellEntry& entry, const Area& area) const {
    if (!names_own_table(entry.formula, rules_.notation)) return;
    Workbook& workbook = cells_.sheet().workbook();
    const bool in_table = std::ranges::any_of(workbook.tables(), [&](const Table& table) {
        return workbook.sheets()[static_cast<std::size_t>(table.sheet)].get() == &cells_.sheet() &&
               table.all.contains(area);
    });
    if (!in_table) refuse(member_, "the formula '=" + entry.formula + "' names no table, and stands in none");
}

void ContentWriter::write_scalar(const Value& value) {
    const std::vector<StyleId> formats = cells_.formats();
    const auto texts = std::ranges::count_if(formats, [&](StyleId id) { return is_text(id); });
    std::int64_t count = 0;
    for (const Area& area : cells_.areas()) count += area.cells();
    const bool all_alike = texts == 0 || texts == static_cast<std::ptrdiff_t>(formats.size());
    const CellEntry entry = read(value, all_alike && texts != 0);
    const CellEntry as_text = all_alike ? CellEntry{} : read(value, true);
    for (const Area& area : cells_.areas()) require_table(entry, area);
    if (entry.blank()) {
        put_everywhere(entry);
        return;
    }
    if (count > most_cells) refuse(member_, "there are too many cells to fill");
    if (all_alike) {
        put_everywhere(entry);
        return;
    }
    clear_arrays();
    const Position from = cells_.first().top_left();
    for (const Area& area : cells_.areas()) {
        for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
            for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
                const Position at{row, column};
                if (covered(at)) continue;
                put(at, from, is_text(cells_.sheet().style_at(at)) ? as_text : entry);
            }
        }
    }
}

void ContentWriter::write_array(const Array& array) {
    const Elements elements(array);
    const std::vector<StyleId> formats = cells_.formats();
    const bool any_text = std::ranges::any_of(formats, [&](StyleId id) { return is_text(id); });
    for (const Area& area : cells_.areas()) {
        if (area.cells() > most_cells) refuse(member_, "there are too many cells to fill");
    }
    // visit(place, element, as text): the element's number, negative for none.
    const auto each_cell = [&](auto&& visit) {
        for (const Area& area : cells_.areas()) {
            for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
                for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
                    const Position at{row, column};
                    if (covered(at)) continue;
                    visit(at, elements.index(row - area.first_row, column - area.first_column),
                          any_text && is_text(cells_.sheet().style_at(at)));
                }
            }
        }
    };
    // Everything is read before anything is written. A cell that keeps texts as typed takes what is no formula.
    std::vector<std::optional<CellEntry>> entries(array.elements().size());
    std::vector<std::optional<CellEntry>> as_texts(any_text ? array.elements().size() : 0);
    each_cell([&](Position at, std::ptrdiff_t index, bool text) {
        if (index < 0) return;
        auto& entry = (text ? as_texts : entries)[static_cast<std::size_t>(index)];
        if (!entry) entry = read(array.elements()[static_cast<std::size_t>(index)], text);
        require_table(*entry, Area::cell(at));
    });
    const CellEntry beyond = read(Value(automation::Error{static_cast<std::int32_t>(CellError::NA)}), false);
    clear_arrays();
    each_cell([&](Position at, std::ptrdiff_t index, bool text) {
        // Formulas of an array stand for the cell that they are put into.
        put(at, at, index < 0 ? beyond : *(text ? as_texts : entries)[static_cast<std::size_t>(index)]);
    });
}

StyleId ContentWriter::restyled(StyleId style, const CellEntry& entry) const {
    StyleTable& styles = cells_.styles();
    const CellFormat& format = styles.formats[style];
    const bool formats_number = !entry.format.empty() && format.number_format == 0;
    if (!formats_number && format.quote_prefix == entry.quoted) return style;
    return styles.with_format(style, [&](CellFormat& changed) {
        changed.quote_prefix = entry.quoted;
        if (formats_number) changed.number_format = styles.intern_number_format(entry.format);
    });
}

void ContentWriter::put_content(Position at, Position from, const CellEntry& entry) {
    Sheet& sheet = cells_.sheet();
    if (entry.formula.empty()) {
        sheet.set_content(at, entry.content);
    } else if (rules_.notation == formula::Notation::r1c1) {
        sheet.set_formula(at, formula::to_a1(entry.formula, at));
    } else {
        sheet.set_formula(at, formula::shift_formula(entry.formula, at.row - from.row, at.column - from.column));
    }
}

void ContentWriter::put(Position at, Position from, const CellEntry& entry) {
    Sheet& sheet = cells_.sheet();
    const StyleId style = sheet.style_at(at);
    put_content(at, from, entry);
    if (restyled(style, entry) == style) return;
    sheet.restyle(Area::cell(at), [&](StyleId id) { return restyled(id, entry); });
}

void ContentWriter::put_everywhere(const CellEntry& entry) {
    Sheet& sheet = cells_.sheet();
    const Position from = cells_.first().top_left();
    if (!entry.blank()) clear_arrays();
    for (const Area& area : cells_.areas()) {
        if (entry.blank()) {
            sheet.clear_content(area);
        } else {
            for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
                for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
                    if (!covered({row, column})) put_content({row, column}, from, entry);
                }
            }
        }
        const std::vector<StyleId> formats = sheet.styles_in(area);
        const bool changes = std::ranges::any_of(formats, [&](StyleId id) { return restyled(id, entry) != id; });
        if (changes) sheet.restyle(area, [&](StyleId id) { return restyled(id, entry); });
    }
}

void ContentWriter::write_array_formula(const std::string& formula) {
    if (cells_.areas().size() > 1) refuse(member_, "an array formula covers one area");
    if (!merges_.empty()) refuse(member_, "an array formula cannot cover merged cells");
    require_writable();
    const std::string_view text = std::string_view(formula).substr(formula.starts_with('=') ? 1 : 0);
    if (const auto error = formula::check_formula(formula, rules_.notation)) {
        refuse(member_, "the formula '" + formula + "' is wrong: " + error->message);
    }
    std::string stored = capitalized(text, rules_.notation);
    const Position from = cells_.first().top_left();
    if (rules_.notation == formula::Notation::r1c1) stored = formula::to_a1(stored, from);
    cells_.sheet().set_array_formula(cells_.first(), std::move(stored));
    cells_.content_changed();
}

void ContentWriter::clear() {
    require_writable();
    for (const Area& merge : merges_) {
        const auto splits = [&](const Area& area) { return area.intersection(merge) && !area.contains(merge); };
        if (std::ranges::any_of(cells_.areas(), splits)) refuse(member_, "a part of a merged cell cannot be cleared");
    }
    put_everywhere({});
    cells_.changed();
}

}  // namespace kestrune::host
