#pragma once

#include <string>
#include <vector>

#include "excel/Range.h"

namespace kestrune::brxllib {

// Cells of one number format: an address that Excel takes, of one or more areas.
struct NumberFormatPart {
    std::string address;
    std::string format;
};

// Parts of a range that together are the whole. Cells are asked for in blocks, which are cut only where they differ;
// what has one format is one part, or as many as its addresses take. Formats come in the order in which they are met.
[[nodiscard]] std::vector<NumberFormatPart> number_format_parts(const excel::Range& range);

}  // namespace kestrune::brxllib
