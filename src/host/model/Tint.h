#pragma once

#include <cstdint>

namespace kestrune::host {

// A BGR colour made darker (tint -1 to 0) or lighter (0 to 1) in its luminance, hue and saturation kept
// (ECMA-376 18.3.1.15).
[[nodiscard]] std::uint32_t tinted(std::uint32_t bgr, double tint);

}  // namespace kestrune::host
