#include "cli/prefs/SettingsSession.h"

#include <fmt/format.h>

#include <cstdio>

#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "cli/Failure.h"
#include "cli/InstallationFolder.h"
#include "native/services.h"
#include "settings/mReadWrite.h"

namespace kestrune::cli {

using automation::AutomationError;

SettingsSession::SettingsSession(forms::Presenter& presenter, const std::string& path)
    : state_(presenter, trace_, installation_folder(), path) {
    trace_.listen([this](std::string_view line) { skipped_.emplace_back(line); });
    brvblib::register_library(native::services(trace_, presenter, installation_folder()));
    brxllib::register_library(trace_, {.presenter = &presenter});
    state_.general_library = std::make_shared<core::diBRVBLib>(trace_);
    state_.spreadsheet_library = std::make_shared<core::diBRXLLib>(trace_);
    if (!state_.general_library->Create() || !state_.spreadsheet_library->Create()) {
        throw Failure("the libraries did not start");
    }
    try {
        path_ = settings::user_preferences_path(state_);
    } catch (const AutomationError& error) {
        throw Failure(error.description());
    }
}

SettingsSession::~SettingsSession() {
    for (const char* name : {"BRVBLib.iPublic", "BRXLLib.iPublic"}) automation::unregister_class(name);
}

bool SettingsSession::has_file() const { return state_.general().file_exists(path_); }

std::shared_ptr<settings::cUserSettings> SettingsSession::load(const std::string& path) {
    try {
        return settings::load_preferences(state_, path);
    } catch (const AutomationError& error) {
        throw Failure(error.description());
    }
}

std::shared_ptr<settings::cUserSettings> SettingsSession::defaults() {
    auto settings = std::make_shared<settings::cUserSettings>();
    settings->LoadDefaults(settings::default_sources(state_));
    return settings;
}

void SettingsSession::save(const settings::cUserSettings& settings) {
    try {
        const std::string kept = settings::keep_unreadable(state_, path_);
        if (!kept.empty()) fmt::print(stderr, "{}: could not be read, and is kept as {}\n", path_, kept);
        settings::save_preferences(state_, settings, path_);
    } catch (const AutomationError& error) {
        throw Failure(error.description());
    }
}

std::string SettingsSession::last_reason() const {
    if (skipped_.empty()) return "it is not known why";
    const std::string& line = skipped_.back();
    const std::string_view member = "user preferences: ";
    return line.starts_with(member) ? line.substr(member.size()) : line;
}

}  // namespace kestrune::cli
