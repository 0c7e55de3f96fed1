#pragma once

#include <cstdint>
#include <string_view>

#include "host/model/Format.h"

namespace kestrune::host {

// A line as the object model takes it apart: XlLineStyle and XlBorderWeight. Files know 13 pairs of them;
// a pair that does not exist falls to the nearest that does: the property being written holds, the other gives way.

std::int32_t line_style(const Line& line);   // xlNone without a line
std::int32_t line_weight(const Line& line);  // xlThin without a line

// Error 1004 for an unknown constant.
void check_line_style(std::string_view member, std::int32_t style);
void check_line_weight(std::string_view member, std::int32_t weight);

void set_line_style(Line& line, std::int32_t style);    // xlNone takes the line away
void set_line_weight(Line& line, std::int32_t weight);  // draws a continuous line where there is none
void set_line_color(Line& line, const Color& color);    // draws a thin continuous line where there is none

}  // namespace kestrune::host
