#pragma once

#include <functional>
#include <string>

#include "cli/show/Classes.h"
#include "host/model/Workbook.h"

namespace kestrune::cli {

// What AutoColor sees in an area of a sheet.
using Classify = std::function<Classes(host::Sheet& sheet, const formula::Area& area)>;

// One HTML page, complete in itself, that looks like the workbook: a tab for each sheet that is not
// hidden, or the given area of one sheet alone. Very large sheets are cut, and the page says so. With classify, fills
// show the classes of cells instead of the workbook's own colours, under a legend.
std::string html_page(host::Workbook& workbook, const Classify& classify = {});
std::string html_page(host::Workbook& workbook, host::Sheet& sheet, const formula::Area& area,
                      const Classify& classify = {});

}  // namespace kestrune::cli
