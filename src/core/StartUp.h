#pragma once

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Loads the two libraries and the user settings. False, after one message to the user, when a library cannot be
// loaded; anything else that fails is skipped.
bool start_up(SharedState& shared);

// Lets go of everything that start-up and the companion workbook gave. Saves nothing: settings are written when the
// user changes them.
void shut_down(SharedState& shared);

}  // namespace kestrune::core
