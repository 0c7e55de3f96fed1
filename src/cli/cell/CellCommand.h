#pragma once

#include <string>
#include <vector>

namespace kestrune::cli {

// `kestrune cell`: everything the object model says about each cell of the references. One JSON array
// of objects, or one fact a line.
void describe_cells(const std::string& workbook, const std::vector<std::string>& references, bool json);

}  // namespace kestrune::cli
