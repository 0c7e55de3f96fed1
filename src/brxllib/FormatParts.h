#pragma once

#include <string>
#include <vector>

#include "automation/Value.h"
#include "excel/Range.h"

namespace kestrune::brxllib {

// Cells that are alike in something: an address that Excel takes, of one or more areas, and what they have.
struct FormatPart {
    std::string address;
    automation::Value value;
};

// Something that Excel answers Null for when cells differ.
using FormatReader = automation::Value (*)(const excel::Range& cells);

// Parts of a range that together are the whole, but for single cells that differ within themselves (a text in two
// sizes). Later parts lie over earlier ones: of whole columns and rows, what the blank cells beyond the used ones have
// comes first and stands for the column, so that writing part after part leaves formats of columns and rows what they
// are. Cells are asked for in blocks, which are cut only where they differ; what is alike is one part, or as many as
// its addresses take.
[[nodiscard]] std::vector<FormatPart> format_parts(const excel::Range& range, FormatReader read);

}  // namespace kestrune::brxllib
