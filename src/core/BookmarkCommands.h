#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Command bodies. A bookmark is a hidden name of the active workbook, "_bbr.KestruneBookmark.<when it was set>.ebr",
// that refers to cells.

// Sets one at the selected cells.
void set_bookmark(SharedState& shared, std::int32_t);

// Goes to the next or previous one, by sheet, then row, then column; behind the last comes the first. Those on hidden
// sheets are passed over. A message tells when there are none.
void next_bookmark(SharedState& shared, std::int32_t);
void previous_bookmark(SharedState& shared, std::int32_t);

// Deletes all of them.
void remove_bookmarks(SharedState& shared, std::int32_t);

}  // namespace kestrune::core
