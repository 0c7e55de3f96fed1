#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "brxllib/Links.h"
#include "excel/Application.h"

namespace kestrune::cli {

enum class Towards : std::uint8_t { precedents, dependents };

// A place in the tree of what a cell is worked out from, or of what is worked out from it.
struct TreeLine {
    std::int32_t level = 0;  // 0 for the cell that the tree is of
    brxllib::Link link;      // the place, and the words that lead to it from the level above; those of no formula for a
                             // cell of a range above
    std::string formula;     // of a cell that has one
    bool open = true;        // its workbook is open; nothing follows from a closed one
    bool circular = false;   // it is one of those that lead to it
    bool repeated = false;   // what follows stands below another line of the same place
};

// The tree line by line, each followed by what hangs on it; to a depth of so many levels, 0 for all. A range is
// followed by those of its cells that have formulas. Every place is followed up once, where it is nearest to the cell,
// so that formulas which refer to themselves come to an end.
[[nodiscard]] std::vector<TreeLine> link_tree(const excel::Application& application, const excel::Range& cell,
                                              Towards towards, std::int32_t depth);

}  // namespace kestrune::cli
