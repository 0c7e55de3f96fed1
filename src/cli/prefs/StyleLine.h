#pragma once

#include <cstdint>
#include <string>

#include "styles/StyleFields.h"

namespace kestrune::cli {

// "#RRGGBB" of a BGR colour.
std::string color_text(std::int32_t color);

// What a style sets, in words: "Arial 14 bold, #FFFFFF on #000000, left". What is transparent is left out.
std::string style_line(const styles::StyleFields& style);

}  // namespace kestrune::cli
