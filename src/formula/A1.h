#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "formula/Reference.h"

namespace kestrune::formula {

// The cell that text such as "AB12" names, as files spell it: no $, no leading zero, inside the sheet.
// Allocates nothing; made for the r attribute of every cell of a sheet.
[[nodiscard]] std::optional<Position> parse_cell_reference(std::string_view text);

// How to print: Excel's Address has both absolute by default, files have both relative.
struct Absolute {
    bool row = false;
    bool column = false;
};

void append_cell(std::string& out, Position cell, Absolute absolute = {});
[[nodiscard]] std::string cell_text(Position cell, Absolute absolute = {});

// "A1" for one cell, "A:C" for whole columns, "3:7" for whole rows (the whole sheet is "1:1048576"), else "A1:C5".
[[nodiscard]] std::string area_text(const Area& area, Absolute absolute = {});

// Adds an A1 reference whose coordinates are positions, each with a $ where it is absolute.
void append_a1(std::string& out, const Reference& reference);

// Reads the longest A1 reference that `text` starts with: A1, $B$2, A1:C5, A:C, 3:7, in either case. Gives its length
// in bytes, or 0 when the text starts with none; names and functions that merely begin like one (LOG10(, A1_x) are
// none.
[[nodiscard]] std::size_t match_a1(std::string_view text, Reference& reference);

}  // namespace kestrune::formula
