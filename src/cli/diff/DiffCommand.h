#pragma once

#include <string>

namespace kestrune::cli {

struct DiffOptions {
    std::string before;
    std::string after;
    bool json = false;
};

// `kestrune diff`: what differs between two workbooks. As text, neighbouring cells with the same change
// make one line; as JSON, one object a cell and property.
void diff(const DiffOptions& options);

}  // namespace kestrune::cli
