#pragma once

#include <cstdint>
#include <string>

#include "excel/Constants.h"

namespace kestrune::styles {

// The kinds of data that the style editors list styles by; a new style has none.
namespace category {
inline constexpr std::int32_t none = 0;
inline constexpr std::int32_t long_number = 1;
inline constexpr std::int32_t medium_number = 2;
inline constexpr std::int32_t short_number = 3;
inline constexpr std::int32_t date = 4;
inline constexpr std::int32_t text = 5;
}  // namespace category

// A fill of this colour is no fill at all.
inline constexpr std::int32_t no_fill = 0xFFFFFF;

// The access level of the shipped standard styles, which are not free to edit.
inline constexpr std::int32_t protected_style = 2;

// What a style consists of. Colours are BGR, colour indices count the workbook's palette of 56 from 1.
// Excel maps every requested colour onto that palette, so each As... field keeps what a cell really got
// the last time the style was applied; only that can be recognised again.
struct StyleFields {
    std::string FriendlyName;
    std::string NumberFormat = "General";
    std::string FontName = "Arial";
    std::int32_t Size = 10;  // points
    bool Bold = false;
    bool Italics = false;
    std::int32_t Underline = excel::xlUnderlineStyleNone;
    std::int32_t FontColor = 0;
    std::int32_t AsFontColor = 0;
    std::int32_t CellColor = no_fill;
    std::int32_t AsCellColorIndex = excel::xlNone;
    std::int32_t HorizontalAlignment = excel::xlGeneral;
    std::int32_t VerticalAlignment = excel::xlBottom;
    std::int32_t Orientation = excel::xlHorizontal;  // or degrees
    std::int32_t Indents = 0;
    bool ShrinkToFit = false;
    bool WrapText = false;
    bool FontStrikeThrough = false;

    // One line for all bordered sides.
    std::int32_t BorderStyle = excel::xlNone;
    std::int32_t BorderWeight = excel::xlThin;
    std::int32_t BorderColor = 0;
    std::int32_t AsBorderColorIndex = 0;
    bool BorderLeft = false;
    bool BorderTop = false;
    bool BorderBottom = false;
    bool BorderRight = false;
    bool BordersInternal = false;  // every cell gets the border, not only the outer edges of the range

    // A transparent component is neither applied nor compared.
    bool bTransNumberFormat = false;
    bool bTransFontSetting = false;  // the font's name
    bool bTransFontStyle = false;    // bold and italic together
    bool bTransFontSize = false;
    bool bTransUnderline = false;
    bool bTransFontColor = false;
    bool bTransCellColor = false;
    bool bTransHorizontalAlignment = false;
    bool bTransVerticalAlignment = false;
    bool bTransOrientation = false;
    bool bTransIndents = false;
    bool bTransShrinkToFit = false;
    bool bTransWrapTest = false;  // wrapping of text, under the name that preferences files know
    bool bTransStrikeThrough = false;
    bool bTransBorders = false;

    std::int32_t Category = category::none;
    std::int32_t AccessLevel = 0;  // 0 free to edit, or protected_style
    std::string Comments;

    bool operator==(const StyleFields&) const = default;
};

}  // namespace kestrune::styles
