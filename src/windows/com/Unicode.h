#pragma once

#include <string>
#include <string_view>

namespace kestrune::windows {

// Between the UTF-8 of Value and the UTF-16 of Windows. A surrogate without its pair, which Windows allows in texts,
// becomes the three bytes that its code would have, and comes back from them; other bytes that are no UTF-8 become
// U+FFFD. Zeros are characters like others.
std::string to_utf8(std::wstring_view text);
std::wstring to_utf16(std::string_view text);

}  // namespace kestrune::windows
