#pragma once

#include <memory>

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Loads the two libraries and the user settings, lets the libraries call this product back, and shows the examples
// workbook when the installation asks for it. False, after one message to the user, when a library cannot be loaded;
// anything else that fails is skipped.
bool start_up(const std::shared_ptr<SharedState>& state);

// Lets go of everything that start-up and the companion workbook gave. Saves nothing: settings are written when the
// user changes them.
void shut_down(SharedState& shared);

}  // namespace kestrune::core
