#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "forms/Picture.h"

namespace kestrune::styles {

struct NamedColor {
    std::string_view name;
    std::int32_t color;  // BGR
};

// The forty colours that Excel's palette of cells names, in its order: from left to right, row by row.
std::span<const NamedColor> named_colors();

// A colour (BGR) as people read and write it: by its name, else as "#RRGGBB".
std::string color_text(std::int32_t color);
// The colour that such a text means, whatever its case; nothing for any other text.
std::optional<std::int32_t> color_meant(std::string_view text);

// A patch of a colour (BGR) to stand beside its name; without a colour an empty one.
std::shared_ptr<const forms::Picture> color_patch(std::optional<std::int32_t> color);

}  // namespace kestrune::styles
