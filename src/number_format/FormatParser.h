#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "number_format/FormatSection.h"

namespace kestrune::number_format {

// A format code taken apart, or why it is none.
struct ParsedFormat {
    std::vector<FormatSection> sections;
    std::string error;  // one line, empty when the code is good
};

// Reads a code in en-US spelling (ECMA-376, 18.8.31).
[[nodiscard]] ParsedFormat parse_format(std::string_view code);

}  // namespace kestrune::number_format
