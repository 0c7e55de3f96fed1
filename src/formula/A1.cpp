#include "formula/A1.h"

#include <array>
#include <charconv>

#include "formula/Characters.h"
#include "formula/Column.h"

namespace kestrune::formula {
namespace {

void append_row(std::string& out, Coordinate row) {
    if (row.absolute) out += '$';
    std::array<char, 12> digits{};
    out.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), row.value).ptr);
}

void append_column(std::string& out, Coordinate column) {
    if (column.absolute) out += '$';
    append_column_letters(out, column.value);
}

bool take_dollar(std::string_view text, std::size_t& at) {
    if (at >= text.size() || text[at] != '$') return false;
    ++at;
    return true;
}

bool match_column(std::string_view text, std::size_t& at, Coordinate& column) {
    std::size_t p = at;
    column.absolute = take_dollar(text, p);
    std::size_t end = p;
    while (end < text.size() && end - p < 4 && is_letter(text[end])) ++end;
    const auto number = parse_column_letters(text.substr(p, end - p));
    if (!number) return false;
    column.value = *number;
    at = end;
    return true;
}

bool match_row(std::string_view text, std::size_t& at, Coordinate& row) {
    std::size_t p = at;
    row.absolute = take_dollar(text, p);
    const std::size_t start = p;
    std::int32_t number = 0;
    while (p < text.size() && is_digit(text[p])) {
        number = number * 10 + (text[p] - '0');
        if (number > max_rows) return false;
        ++p;
    }
    if (p == start || number == 0) return false;
    row.value = number;
    at = p;
    return true;
}

bool match_cell(std::string_view text, std::size_t& at, Coordinate& row, Coordinate& column) {
    std::size_t p = at;
    if (!match_column(text, p, column) || !match_row(text, p, row)) return false;
    at = p;
    return true;
}

template <class Match>
std::size_t match_pair(std::string_view text, const Match& match, Coordinate& first, Coordinate& last) {
    std::size_t p = 0;
    if (!match(text, p, first) || p >= text.size() || text[p] != ':') return 0;
    ++p;
    return match(text, p, last) && ends_reference(text, p) ? p : 0;
}

}  // namespace

std::optional<Position> parse_cell_reference(std::string_view text) {
    const char* p = text.data();
    const char* const end = p + text.size();
    std::int32_t column = 0;
    for (; p != end; ++p) {
        const auto letter = static_cast<unsigned>((*p | 0x20) - 'a');
        if (letter >= 26) break;
        column = column * 26 + static_cast<std::int32_t>(letter) + 1;
        if (column > max_columns) return std::nullopt;
    }
    if (column == 0 || p == end || *p == '0') return std::nullopt;
    std::int32_t row = 0;
    for (; p != end; ++p) {
        const auto digit = static_cast<unsigned>(*p - '0');
        if (digit > 9) return std::nullopt;
        row = row * 10 + static_cast<std::int32_t>(digit);
        if (row > max_rows) return std::nullopt;
    }
    return Position{row, column};
}

void append_cell(std::string& out, Position cell, Absolute absolute) {
    append_column(out, {cell.column, absolute.column});
    append_row(out, {cell.row, absolute.row});
}

std::string cell_text(Position cell, Absolute absolute) {
    std::string out;
    append_cell(out, cell, absolute);
    return out;
}

std::string area_text(const Area& area, Absolute absolute) {
    Reference reference{Shape::cells,
                        !area.single_cell(),
                        {area.first_row, absolute.row},
                        {area.first_column, absolute.column},
                        {area.last_row, absolute.row},
                        {area.last_column, absolute.column}};
    if (area.whole_rows())
        reference.shape = Shape::rows;
    else if (area.whole_columns())
        reference.shape = Shape::columns;
    std::string out;
    append_a1(out, reference);
    return out;
}

void append_a1(std::string& out, const Reference& reference) {
    switch (reference.shape) {
        case Shape::cells:
            append_column(out, reference.first_column);
            append_row(out, reference.first_row);
            if (!reference.range) return;
            out += ':';
            append_column(out, reference.last_column);
            append_row(out, reference.last_row);
            return;
        case Shape::rows:
            append_row(out, reference.first_row);
            out += ':';
            append_row(out, reference.last_row);
            return;
        case Shape::columns:
            append_column(out, reference.first_column);
            out += ':';
            append_column(out, reference.last_column);
            return;
    }
}

std::size_t match_a1(std::string_view text, Reference& reference) {
    reference = {};
    std::size_t at = 0;
    if (match_cell(text, at, reference.first_row, reference.first_column)) {
        if (at < text.size() && text[at] == ':') {
            std::size_t second = at + 1;
            if (match_cell(text, second, reference.last_row, reference.last_column) && ends_reference(text, second)) {
                reference.range = true;
                return second;
            }
        }
        reference.last_row = reference.first_row;
        reference.last_column = reference.first_column;
        return ends_reference(text, at) ? at : 0;
    }
    reference.range = true;
    reference.shape = Shape::columns;
    if ((at = match_pair(text, match_column, reference.first_column, reference.last_column)) > 0) return at;
    reference.shape = Shape::rows;
    return match_pair(text, match_row, reference.first_row, reference.last_row);
}

}  // namespace kestrune::formula
