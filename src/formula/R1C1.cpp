#include "formula/R1C1.h"

#include <fmt/format.h>

#include <iterator>

#include "formula/Characters.h"

namespace kestrune::formula {
namespace {

void append(std::string& out, char axis, Coordinate coordinate) {
    out += axis;
    if (coordinate.absolute)
        fmt::format_to(std::back_inserter(out), "{}", coordinate.value);
    else if (coordinate.value != 0)
        fmt::format_to(std::back_inserter(out), "[{}]", coordinate.value);
}

// Reads "R", "R5" or "R[-5]"; leaves `at` alone when there is none.
bool match_axis(std::string_view text, std::size_t& at, char axis, std::int32_t limit, Coordinate& coordinate) {
    std::size_t p = at;
    if (p >= text.size() || to_upper(text[p]) != axis) return false;
    ++p;
    coordinate = {0, false};
    bool bracket = false;
    bool negative = false;
    if (p < text.size() && text[p] == '[') {
        bracket = true;
        ++p;
        if (p < text.size() && (text[p] == '-' || text[p] == '+')) negative = text[p++] == '-';
    }
    const std::size_t digits = p;
    std::int32_t number = 0;
    while (p < text.size() && is_digit(text[p])) {
        number = number * 10 + (text[p] - '0');
        if (number > limit) return false;
        ++p;
    }
    const bool has_number = p > digits;
    if (bracket) {
        if (!has_number || number == limit || p >= text.size() || text[p] != ']') return false;
        ++p;
        coordinate.value = negative ? -number : number;
    } else if (has_number) {
        if (number == 0) return false;
        coordinate = {number, true};
    }
    at = p;
    return true;
}

// One corner, or a whole row or column; `shape` tells which.
bool match_part(std::string_view text, std::size_t& at, Shape& shape, Coordinate& row, Coordinate& column) {
    std::size_t p = at;
    const bool has_row = match_axis(text, p, 'R', max_rows, row);
    const bool has_column = match_axis(text, p, 'C', max_columns, column);
    if (!(has_row || has_column) || !ends_reference(text, p)) return false;
    shape = has_row && has_column ? Shape::cells : has_row ? Shape::rows : Shape::columns;
    at = p;
    return true;
}

}  // namespace

void append_r1c1(std::string& out, const Reference& reference, bool in_full) {
    if (reference.has_rows()) append(out, 'R', reference.first_row);
    if (reference.has_columns()) append(out, 'C', reference.first_column);
    // One whole row or column is R3, not R3:R3.
    const bool same = reference.shape != Shape::cells && reference.first_row == reference.last_row &&
                      reference.first_column == reference.last_column;
    if (!reference.range || (same && !in_full)) return;
    out += ':';
    if (reference.has_rows()) append(out, 'R', reference.last_row);
    if (reference.has_columns()) append(out, 'C', reference.last_column);
}

std::size_t match_r1c1(std::string_view text, Reference& reference) {
    reference = {};
    std::size_t at = 0;
    if (!match_part(text, at, reference.shape, reference.first_row, reference.first_column)) return 0;
    reference.last_row = reference.first_row;
    reference.last_column = reference.first_column;
    if (at < text.size() && text[at] == ':') {
        Reference second;
        std::size_t end = at + 1;
        if (match_part(text, end, second.shape, second.first_row, second.first_column) &&
            second.shape == reference.shape) {
            reference.range = true;
            reference.last_row = second.first_row;
            reference.last_column = second.first_column;
            return end;
        }
    }
    return at;
}

}  // namespace kestrune::formula
