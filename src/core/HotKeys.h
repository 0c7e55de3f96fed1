#pragma once

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Has the general library bind the commands' keys to the companion workbook's macros. What fails is skipped; without a
// companion workbook no key is bound.
void start_hot_keys(const SharedState& shared);

}  // namespace kestrune::core
