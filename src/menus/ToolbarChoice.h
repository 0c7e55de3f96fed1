#pragma once

#include "core/bridges/SharedState.h"

namespace kestrune::menus {

// Whether the toolbar is there and shown.
bool toolbar_is_shown(const core::SharedState& shared);

// Whether the user wants it: what was kept last, in a file of its own beside the user's settings; true for a user who
// never said.
bool wants_toolbar(const core::SharedState& shared);
void keep_toolbar(const core::SharedState& shared, bool shown);

}  // namespace kestrune::menus
