#pragma once

#include "cli/diff/Change.h"
#include "host/model/Workbook.h"

namespace kestrune::cli {

// Tells what differs between two workbooks: names first, then sheet by sheet. each_cell: cells are told one by one;
// else neighbours with the same change make one rectangle. How many cells differ.
std::int64_t compare(host::Workbook& before, host::Workbook& after, bool each_cell, const ChangeSink& tell);

}  // namespace kestrune::cli
