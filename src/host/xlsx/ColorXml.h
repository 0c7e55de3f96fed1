#pragma once

#include <string>
#include <string_view>

#include "host/model/Color.h"
#include "host/xlsx/XmlElement.h"

namespace kestrune::host {

// A colour element (ECMA-376 18.8.19); Kind::None for one that names none.
[[nodiscard]] Color read_color(const XmlElement& element);

// <name .../> under a prefix; nothing for Kind::None.
void append_color(std::string& out, std::string_view prefix, std::string_view name, const Color& color);

// "FFRRGGBB" or "RRGGBB" as BGR, and BGR as "FFRRGGBB".
[[nodiscard]] std::uint32_t parse_argb(std::string_view text);
[[nodiscard]] std::string argb_text(std::uint32_t bgr);

}  // namespace kestrune::host
