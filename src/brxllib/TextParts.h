#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "excel/Range.h"

namespace kestrune::brxllib {

// Cells that all hold a text, or none of which does.
struct TextPart {
    std::string address;  // of one or more rectangles
    bool holds = false;
};

// Parts of a rectangle by whether the formula of a cell is the text; together they are the whole, less the cells that a
// merged area covers. The part with a row's last cell comes after the row's other parts, so that what is done part by
// part to rows ends as if it were done cell by cell. Of whole rows and columns only the used ones are looked at.
[[nodiscard]] std::vector<TextPart> text_parts(const excel::Range& rectangle, std::string_view text);

}  // namespace kestrune::brxllib
