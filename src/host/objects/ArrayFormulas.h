#pragma once

#include <vector>

#include "host/model/Sheet.h"

namespace kestrune::host {

// The array formulas and data tables of several cells that have cells in an area.
std::vector<Formula> arrays_in(Sheet& sheet, const Area& area);

}  // namespace kestrune::host
