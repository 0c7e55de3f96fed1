#pragma once

#include <cstdint>
#include <string_view>

#include "automation/Value.h"
#include "host/model/Workbook.h"

namespace kestrune::host {

// How the object model reads a stored colour, and what it stores for a written one. Font, Interior and
// Border share it. Colours are BGR.

// The colour as a person sees it; automatic for an automatic or absent one.
automation::Value color_value(const Workbook& workbook, const Color& color, std::uint32_t automatic);
// 1..56 of the palette: the entry itself, or the nearest to a true colour. xlAutomatic for an automatic or absent one.
automation::Value color_index(const Workbook& workbook, const Color& color);
// 1..12 as XlThemeColor; Empty for a colour that is none of the theme's.
automation::Value theme_color(const Color& color);
// What ThemeColor answers where theme_color of all colours together is this: Null stays Null, and a colour that is none
// of the theme's is error 1004 (Microsoft's reference: "an invalid request run-time error").
automation::Value themed(std::string_view member, automation::Value answer);

// Excel keeps the lower 24 bits; recorded macros write the byte above them as FF.
Color color_of_value(std::int32_t bgr);
// 1..56, or 0 and xlAutomatic for the automatic colour; anything else is error 1004.
Color color_of_index(std::string_view member, std::int32_t index);
// 1..12; anything else is error 1004.
Color color_of_theme(std::string_view member, std::int32_t theme_color);
// Between -1 and 1; outside is error 1004.
double checked_tint(std::string_view member, double tint);

}  // namespace kestrune::host
