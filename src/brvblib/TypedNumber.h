#pragma once

#include <optional>
#include <string_view>

namespace kestrune::brvblib {

// The number that a person typed, as en-US writes numbers: "1,250.5", "-3", "(3)", "$40", "12.5%", "1e6", with blanks
// around it. Nothing for anything else: commas must part digits, and one sign or a pair of parentheses is enough.
std::optional<double> typed_number(std::string_view text);

}  // namespace kestrune::brvblib
