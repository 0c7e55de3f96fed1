#pragma once

#include <optional>
#include <string_view>

#include "styles/StyleFields.h"

namespace kestrune::styles {

// A colour of Excel's default palette, which every workbook has until somebody changes it.
struct PaletteColor {
    std::int32_t color;  // BGR
    std::int32_t index;
};

enum class FontStyle { regular, bold, italic, bold_italic };

struct BorderDesign {
    std::int32_t style = excel::xlNone;
    std::int32_t weight = excel::xlThin;
    std::string_view sides = {};  // of "LTBR", the bordered ones
    bool internal = false;
};

// The components that a style of the library sets; what is left out is transparent.
struct StyleDesign {
    std::string_view number_format = {};
    std::string_view font_name = {};
    std::optional<FontStyle> font_style = {};
    std::optional<std::int32_t> size = {};  // points
    std::optional<std::int32_t> underline = {};
    std::optional<PaletteColor> font_color = {};
    std::optional<PaletteColor> fill = {};
    std::optional<std::int32_t> indents = {};
    std::optional<std::int32_t> horizontal = {};
    std::optional<std::int32_t> vertical = {};
    std::optional<std::int32_t> orientation = {};
    std::optional<bool> shrink = {};
    std::optional<bool> wrap = {};
    std::optional<bool> strike = {};
    std::optional<BorderDesign> border = {};
};

// The fields of a style of this name and category, recognisable in a workbook with the default
// palette before it was ever applied.
StyleFields fields_of(std::string_view name, std::int32_t category, const StyleDesign& design);

}  // namespace kestrune::styles
