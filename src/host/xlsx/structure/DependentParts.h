#pragma once

#include <functional>
#include <string>
#include <vector>

#include "formula/Edit.h"
#include "host/model/Workbook.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// The parts beside the sheets' own that name cells: drawings, charts, comments, tables, pivot tables, controls. Works
// out what an edit makes of them, before it happens; ModelError when one cannot follow, with its name. What comes back
// is to be called once the sheets have followed, and puts it into the package.
[[nodiscard]] std::function<void()> move_dependent_parts(Package& package, Workbook& book,
                                                         const std::vector<std::string>& sheet_parts,
                                                         const formula::Edit& edit);

}  // namespace kestrune::host
