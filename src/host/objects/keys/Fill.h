#pragma once

#include "host/objects/HostSession.h"

namespace kestrune::host {

// Copies the first row (or column) of each selected area, contents and formats, onto the others; of an area that is one
// row (column), the row above (column at the left) onto it. Formulas move along. Error 1004 where there is none to
// copy, where a cell is locked, and in the middle of an array formula.
void fill_selection(HostSession& session, bool down);

}  // namespace kestrune::host
