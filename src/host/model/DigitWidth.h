#pragma once

#include <cstdint>
#include <string_view>

namespace kestrune::host {

// Pixels of a font's widest digit at 96 dpi, at least 1; an estimate for fonts that are not known here.
[[nodiscard]] std::int32_t digit_pixels_of(std::string_view font, double points);

}  // namespace kestrune::host
