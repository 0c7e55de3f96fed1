#pragma once

#include <optional>
#include <string_view>

namespace kestrune::number_format {

// The code of a number format that files name by id alone (ECMA-376, 18.8.30), as an English Excel's object
// model spells it. Empty for ids that name none. Ids 27 to 36 and 50 to 58 are East Asian dates and times, which an
// English Excel shows in its own.
[[nodiscard]] std::string_view built_in_format(int id);

// The id that files use for the code, 0 to 49; nothing for codes that a file has to spell out.
[[nodiscard]] std::optional<int> built_in_format_id(std::string_view code);

}  // namespace kestrune::number_format
