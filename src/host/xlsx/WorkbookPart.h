#pragma once

#include <string>
#include <vector>

#include "host/model/Workbook.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// Reads the workbook part (ECMA-376 18.2): sheets without their content, names, date system, protection. Gives back
// the part that each sheet stands in, in the order of the sheets. Sheets whose part is missing are a PackageError.
std::vector<std::string> read_workbook_part(const Package& package, Workbook& book);

// Whether the workbook differs from the file in what this part says.
[[nodiscard]] bool workbook_part_changed(const Workbook& book);

// The part's text with names, calculation and active sheet as the workbook has them; all else stays to the byte.
[[nodiscard]] std::string write_workbook_part(std::string text, const Workbook& book);

// A sheet's text with its tab selected or not; sheets that are selected together are edited together.
[[nodiscard]] std::string with_tab_selected(const std::string& text, bool selected);

}  // namespace kestrune::host
