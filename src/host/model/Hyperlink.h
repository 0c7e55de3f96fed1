#pragma once

#include <string>

#include "formula/Area.h"

namespace kestrune::host {

// A link that cells lead to when they are clicked. Links that a HYPERLINK() formula makes are none of these.
struct Hyperlink {
    formula::Area area;
    std::string address;      // a file or web address; empty for a place in the workbook itself
    std::string sub_address;  // a cell or name there: "Sheet1!A1"
    std::string screen_tip;
    std::string text;  // what the cell showed when the link was made
};

}  // namespace kestrune::host
