#pragma once

#include <string>

#include "host/model/Workbook.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// The colours and fonts of a theme part (ECMA-376 20.1.6.9); what it does not say is the Office theme's.
[[nodiscard]] Theme read_theme(const Package& package, const std::string& part);

}  // namespace kestrune::host
