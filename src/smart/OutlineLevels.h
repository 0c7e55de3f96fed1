#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::smart {

// Opens all levels of the outline of the selection's sheet, rows and columns, when a grouped row or column is hidden;
// otherwise closes it to the first level. Rows and columns of the selection are shown either way, except those of
// whole columns, and of whole rows: somebody who selects these means the outline alone.
void toggle_outline_levels(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::smart
