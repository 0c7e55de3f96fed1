#pragma once

#include <string_view>

#include "host/model/Format.h"

namespace kestrune::host {

// Pixels between a text and the lines of its cell, both sides together.
inline constexpr double cell_padding = 5;

// A text's width in pixels at 96 dpi, told by how wide its characters mostly are beside a digit.
[[nodiscard]] double text_pixels(std::string_view text, const Font& font);

}  // namespace kestrune::host
