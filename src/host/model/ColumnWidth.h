#pragma once

#include <cstdint>

namespace kestrune::host {

// Column widths have three units: characters as a user sees them, the width that files store (padding included), and
// pixels at 96 dpi. `digit` is the pixels of the Normal font's widest digit; 5 pixels are padding and gridline
// (ECMA-376 18.3.1.13). Below one character the padding shrinks in proportion.

[[nodiscard]] std::int32_t pixels_of_characters(double characters, std::int32_t digit);
[[nodiscard]] double characters_of_pixels(std::int32_t pixels, std::int32_t digit);  // to hundredths
[[nodiscard]] std::int32_t pixels_of_stored_width(double width, std::int32_t digit);
[[nodiscard]] double stored_width_of_pixels(std::int32_t pixels, std::int32_t digit);

// Pixels of a column of a sheet that only says how many characters its columns hold; Excel rounds these up to 8.
[[nodiscard]] std::int32_t standard_column_pixels(std::int32_t characters, std::int32_t digit);

// Heights in points snap to whole pixels.
[[nodiscard]] double whole_pixel_points(double points);

}  // namespace kestrune::host
