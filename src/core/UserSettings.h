#pragma once

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Reads the user settings, makes them the add-in's and has it work by them. report_problems: whether settings that
// cannot be read are told to the user, who gets the defaults instead. Nothing that fails leaves it.
void load_user_settings(SharedState& shared, bool report_problems);

}  // namespace kestrune::core
