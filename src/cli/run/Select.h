#pragma once

#include <string>

#include "cli/OpenWorkbook.h"
#include "excel/Range.h"

namespace kestrune::cli {

// The cells that a reference ("Sheet1!B2:C5,E7", "F:F") or a defined name stands for; without a sheet, on
// the active one. Failure when the sheet or the name does not exist, or stands for no cells.
excel::Range find_cells(OpenWorkbook& book, const std::string& target);

// Makes these cells the selection, on their sheet.
void select_cells(OpenWorkbook& book, const std::string& target);

// "Model!B4:F20": what is selected, for a person; "'[Rates.xlsx]FX'!A2" in another workbook than the given one.
std::string selection_text(OpenWorkbook& book);

}  // namespace kestrune::cli
