#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Command bodies: go to another visible worksheet of the active workbook. The last is followed by the first.
void next_worksheet(SharedState& shared, std::int32_t);
void previous_worksheet(SharedState& shared, std::int32_t);
void first_worksheet(SharedState& shared, std::int32_t);
void last_worksheet(SharedState& shared, std::int32_t);

}  // namespace kestrune::core
