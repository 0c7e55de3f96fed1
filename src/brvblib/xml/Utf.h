#pragma once

#include <string>
#include <string_view>

namespace kestrune::brvblib {

inline constexpr char32_t no_character = 0xFFFFFFFF;

// Takes the first character off a UTF-8 text; no_character, and one byte taken, where the bytes are none: overlong
// forms, surrogates and codes above U+10FFFF included.
char32_t take_utf8(std::string_view& text);

void append_utf8(std::string& text, char32_t character);

// UTF-16, its byte order mark taken off, as UTF-8. A surrogate without its pair, or half a unit at the end, becomes
// U+FFFD.
std::string utf8_of_utf16(std::string_view bytes, bool big_endian);

}  // namespace kestrune::brvblib
