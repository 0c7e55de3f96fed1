#pragma once

#include <string_view>

#include "host/objects/CellRange.h"
#include "host/objects/RangeObject.h"

namespace kestrune::host {

// What Range(Cell1, Cell2) stands for on the sheet `own`: an address or a name, a range, or the
// rectangle from one to the other. Cells of another sheet, and text that names none, are error 1004.
CellRange range_of_arguments(std::string_view member, HostSession& session, Sheet& own, const Value& cell1,
                             const Value& cell2);

// The same without the tie to one sheet: Application.Range finds names of other sheets.
CellRange range_anywhere(std::string_view member, HostSession& session, Sheet& own, const Value& cell1,
                         const Value& cell2);

// Whether a text consists of addresses without a sheet, which Range.Range counts from its own corner.
bool names_addresses_only(std::string_view text);

}  // namespace kestrune::host
