#pragma once

#include <string>

namespace kestrune::number_format {

// How many characters, sign aside, General takes at most however wide the column is.
inline constexpr int general_width = 11;

// A number as General shows it in a cell of `width` characters (the sign counts among them): rounded to what fits, in
// scientific form when the digits in front of the decimal point do not fit or when too little would be left of a small
// number. Empty when nothing fits.
[[nodiscard]] std::string general_text(double value, int width = general_width + 1);

// A number with all its digits (up to 15), as the formula bar shows a constant: 1234567.89, 0.1, 1E+21.
[[nodiscard]] std::string full_number_text(double value);

}  // namespace kestrune::number_format
