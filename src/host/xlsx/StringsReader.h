#pragma once

#include <string>

#include "host/model/StringTable.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// Reads the shared strings part (ECMA-376 18.4.9) into a table.
void read_strings(const Package& package, const std::string& part, StringTable& strings);

}  // namespace kestrune::host
