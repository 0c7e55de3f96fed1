#pragma once

#include <cstdint>
#include <vector>

namespace kestrune::forms {

// What an image control shows: rows of pixels from the top, 0xAARRGGBB each.
struct Picture {
    std::int32_t width = 0;   // pixels
    std::int32_t height = 0;  // pixels
    std::vector<std::uint32_t> pixels;
};

}  // namespace kestrune::forms
