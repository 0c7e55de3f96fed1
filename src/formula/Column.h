#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::formula {

// Adds the letters of a 1-based column: 1 is "A", 27 is "AA", 16384 is "XFD". The column must be at least 1.
void append_column_letters(std::string& out, std::int32_t column);
[[nodiscard]] std::string column_letters(std::int32_t column);

// The 1-based column that letters in either case name; nothing for other text and for columns past XFD.
[[nodiscard]] std::optional<std::int32_t> parse_column_letters(std::string_view letters);

}  // namespace kestrune::formula
