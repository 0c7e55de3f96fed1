#pragma once

#include <string_view>

namespace kestrune::smart {

// How two texts (UTF-8) compare when the case of letters does not count: below, at or above 0. Knows the letters of
// Latin, Greek and Cyrillic script.
[[nodiscard]] int compare_texts(std::string_view a, std::string_view b);

}  // namespace kestrune::smart
