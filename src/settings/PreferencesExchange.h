#pragma once

#include <memory>

#include "core/bridges/SharedState.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// What the settings dialog does with files; each asks and tells in message boxes. Nothing that fails leaves them.

// The settings of a file that the user picks; null when they cancel, or when the file cannot be read.
std::shared_ptr<cUserSettings> ImportUserPreferences(const core::SharedState& shared);

// Saves settings to a file that the user picks. Whether it was saved.
bool ExportUserPreferences(const core::SharedState& shared, const cUserSettings& settings);

// Gives a record the default settings when the user agrees. Whether they did.
bool RestoreUserPreferences(core::SharedState& shared, cUserSettings& settings);

}  // namespace kestrune::settings
