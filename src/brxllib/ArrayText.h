#pragma once

#include <string>

#include "automation/Value.h"

namespace kestrune::brxllib {

// An array as lines of text: one a row of a table, one an entry of a list. An entry of a list that is an array itself
// (Visual Basic's way of making records) is a row. At most 30 rows of 12 columns of 24 characters; what is left out is
// counted in the last line.
[[nodiscard]] std::string array_text(const automation::Value& array);

}  // namespace kestrune::brxllib
