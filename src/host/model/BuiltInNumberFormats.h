#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::host {

// The number formats that files name by number alone (ECMA-376 18.8.30), en-US, spelled as Range.NumberFormat
// answers them. Null for a number without a built-in code.
[[nodiscard]] const std::string* built_in_number_format(std::uint32_t number);
// The number of a built-in code; "General" in any case.
[[nodiscard]] std::optional<std::uint32_t> built_in_number_format_of(std::string_view code);

}  // namespace kestrune::host
