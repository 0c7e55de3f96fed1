#pragma once

#include "host/model/Workbook.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// The number formats that a package's charts and pivot tables show values in. Broken parts are a PackageError.
[[nodiscard]] FormatsElsewhere read_formats_elsewhere(const Package& package);

}  // namespace kestrune::host
