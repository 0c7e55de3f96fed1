#pragma once

#include <cstdint>
#include <string_view>

#include "host/model/Format.h"

namespace kestrune::host {

// Fill patterns as XlPattern; an unknown constant is error 1004.
std::int32_t pattern_constant(const Fill& fill);
Pattern pattern_of(std::string_view member, std::int32_t constant);

// Gives a fill another pattern: the cell's colour stays the cell's colour, though a solid fill stores
// it where others store the colour of their lines (ECMA-376 18.8.20, fgColor).
void change_pattern(Fill& fill, Pattern pattern);

// The colour of the cell, and that of the pattern's lines.
const Color& cell_color(const Fill& fill);
const Color& line_color(const Fill& fill);
// Writing the cell's colour makes the pattern solid when there is none.
void set_cell_color(Fill& fill, const Color& color);
void set_line_color(Fill& fill, const Color& color);

}  // namespace kestrune::host
