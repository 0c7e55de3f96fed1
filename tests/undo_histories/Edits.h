#pragma once

#include "excel/Application.h"
#include "excel/Worksheet.h"
#include "undo_histories/Dice.h"

namespace kestrune::histories {

// Cells of one of the active workbook's sheets: a cell, a block, several areas, whole rows, whole columns, a sheet.
excel::Range random_cells(const excel::Application& application, Dice& dice);

// Does one thing to cells, as a person or a macro might: an entry, a format, a border, a merge, a conditional format,
// a height, a group, a name ... Cells outside do not change. What Excel refuses is left out.
void edit(const excel::Range& cells, Dice& dice);

}  // namespace kestrune::histories
