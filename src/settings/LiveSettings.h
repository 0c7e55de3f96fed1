#pragma once

#include <memory>

#include "core/bridges/SharedState.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// Makes a record the one that all commands work by from now on, and hands its AutoColor settings over.
void use_settings(core::SharedState& shared, std::shared_ptr<cUserSettings> settings);

// Takes the settings of the user's own file. A file that cannot be read is set aside under a name that says so and
// replaced by one of defaults, as is one that is not there; report_problems: whether the user is told. Nothing that
// fails leaves it.
void load_settings(core::SharedState& shared, bool report_problems);

// Takes them anew while the add-in runs, as after a change from outside. When the file cannot be read, the settings in
// use stay, and so does the file.
void reload_settings(core::SharedState& shared);

}  // namespace kestrune::settings
