#pragma once

#include <cstdint>
#include <string>

namespace kestrune::cli {

struct TraceOptions {
    std::string workbook;
    std::string cell;
    bool precedents = false;  // also when neither is given
    bool dependents = false;
    std::int32_t depth = 1;  // levels; 0 for all
    bool json = false;
};

// `kestrune trace`: the tree of what a cell refers to, or of what refers to it. One place a line, indented by its
// level; or one JSON object a place.
void trace(const TraceOptions& options);

}  // namespace kestrune::cli
