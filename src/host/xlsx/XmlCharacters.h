#pragma once

#include <string>
#include <string_view>

namespace kestrune::host {

// Text between tags, and attribute values, as XML writes them.
void append_escaped(std::string& out, std::string_view text);
void append_escaped_attribute(std::string& out, std::string_view text);  // for double quotes
[[nodiscard]] std::string escaped_attribute(std::string_view text);

// Character and predefined entity references resolved, line ends as one line feed. Unknown entities stay as they stand.
[[nodiscard]] std::string unescaped(std::string_view raw);
// The same for an attribute's value, where white space reads as spaces.
[[nodiscard]] std::string unescaped_attribute(std::string_view raw);

// Strings in cells write characters that XML cannot hold, and what would read as such, as _xHHHH_ (ECMA-376 22.9.2.19).
[[nodiscard]] std::string decode_xstring(std::string_view text);
[[nodiscard]] std::string encode_xstring(std::string_view text);

// Whether a reader that trims would lose something, so that xml:space="preserve" is called for.
[[nodiscard]] bool needs_preserve(std::string_view text);

void append_utf8(std::string& out, char32_t character);

}  // namespace kestrune::host
