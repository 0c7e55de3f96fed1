#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "formula/Area.h"

namespace kestrune::host {

// A table of a worksheet (ListObject).
struct Table {
    std::string name;        // as formulas call it
    std::int32_t sheet = 0;  // 0-based
    formula::Area all;       // headers and totals included
    bool headers = true;
    bool totals = false;
    std::vector<std::string> columns;  // from left to right
};

}  // namespace kestrune::host
