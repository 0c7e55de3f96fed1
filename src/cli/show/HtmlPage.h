#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/model/Workbook.h"

namespace kestrune::cli {

// One HTML page, complete in itself, that looks like the workbook: a tab for each sheet that is not
// hidden, or the given area of one sheet alone. Very large sheets are cut, and the page says so.
std::string html_page(host::Workbook& workbook);
std::string html_page(host::Workbook& workbook, host::Sheet& sheet, const formula::Area& area);

}  // namespace kestrune::cli
