#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/bridges/Product.h"
#include "core/bridges/SharedState.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// The settings of the document that the XML service holds; null, with the reason in the trace, when it holds none or a
// part of it cannot be read.
std::shared_ptr<cUserSettings> ReadUserPreferences(const core::SharedState& shared);

// Builds the document of some settings in the XML service. Whether all of it is there.
bool WriteUserPreferences(const core::SharedState& shared, const cUserSettings& settings);

// The settings of a file; null, after one message to the user and with the reason in the trace, when it cannot be read.
std::shared_ptr<cUserSettings> LoadUserPreferencesFile(const core::SharedState& shared, std::string_view path);

// Puts the settings into a file, whole or not at all; into the user's own for an empty path. False, with the reason in
// the trace, when that failed: the file is then what it was.
bool SaveUserPreferences(const core::SharedState& shared, const cUserSettings& settings, std::string_view path = {});

// Where the user's own settings are. Fails for a user without a folder for data.
std::string user_preferences_path(const core::SharedState& shared);

// The same as loading and saving for those who want the reason: an AutomationError whose description is one line,
// "PATH: what is wrong". requester: who reads, as that line names documents that are not its.
std::shared_ptr<cUserSettings> load_preferences(const core::SharedState& shared, std::string_view path,
                                                std::string_view requester = core::product_title);
void save_preferences(const core::SharedState& shared, const cUserSettings& settings, std::string_view path);

// Makes room for settings in the place of a file that cannot be read: it may hold years of styles, so it is renamed.
// Its new path; empty where none is there or it can be read. Fails with class-not-registered where nothing reads files:
// what is there may be in order.
std::string keep_unreadable(const core::SharedState& shared, const std::string& path);

// What default settings take from the libraries.
DefaultSources default_sources(const core::SharedState& shared);

}  // namespace kestrune::settings
