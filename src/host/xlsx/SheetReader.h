#pragma once

#include <string>

#include "host/model/Sheet.h"
#include "host/xlsx/SheetLayout.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// Reads a worksheet's part into a sheet, in one pass over its XML. Cells, rows and merges outside the sheet, and values
// that are none, are a PackageError with their place. Rows and cells may come in any order, and of two cells at one
// place the last counts; positions that are not written follow from the neighbours. Cell formats and shared strings
// that do not exist read as the default format and empty text.
SheetLayout read_sheet(const Package& package, const std::string& part, Sheet& sheet);

}  // namespace kestrune::host
