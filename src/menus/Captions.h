#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kestrune::menus {

// A text that is shown as it stands: its "&" mark no access key.
std::string literal_caption(std::string_view text);

// The access key that a caption marks, lower-case; 0 when it marks none.
char access_key(std::string_view caption);

// Marks a letter or digit as access key in each caption that has none: one that no other caption of the same popup has,
// a word's first where there is one. A caption stays without where all are taken.
void give_access_keys(std::span<std::string> captions);

}  // namespace kestrune::menus
