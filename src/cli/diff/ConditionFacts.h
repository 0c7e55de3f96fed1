#pragma once

#include <string>

#include "host/model/Workbook.h"

namespace kestrune::cli {

// A sheet's conditional formats as one text, in the order in which Excel applies the rules: the cells, in the same
// rectangles whatever the file lists them by, the condition, whether it stops there, and how it formats.
std::string condition_facts(host::Sheet& sheet);

}  // namespace kestrune::cli
