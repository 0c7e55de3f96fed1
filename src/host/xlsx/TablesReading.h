#pragma once

#include <string>
#include <vector>

#include "host/model/Table.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// The tables (ECMA-376 18.5) of the sheets in these parts, sheet by sheet. A table without a place on a sheet is none;
// broken parts are a PackageError.
[[nodiscard]] std::vector<Table> read_tables(const Package& package, const std::vector<std::string>& sheet_parts);

// The workbooks that formulas of the package's workbook call [1], [2] and so on, as paths; empty for links to other
// programs. folder: of the workbook, where paths without one start.
[[nodiscard]] std::vector<std::string> read_external_links(const Package& package, const std::string& folder);

}  // namespace kestrune::host
