#pragma once

#include <string>
#include <vector>

#include "automation/Trace.h"
#include "excel/Worksheet.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// What lies on whole rows (columns), or through them, and would not be as it was once they have gone and come in again
// blank: comments, hyperlinks, data validations, tables, shapes and charts. Each a clause for a person: "its cells hold
// comments". areas: of the lines, ascending. What an Excel does not tell counts as not there.
[[nodiscard]] std::vector<std::string> things_lost_with(const excel::Range& lines,
                                                        const std::vector<formula::Area>& areas, bool rows,
                                                        const automation::Trace& trace);

}  // namespace kestrune::brxllib::undo
