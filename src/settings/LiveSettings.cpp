#include "settings/LiveSettings.h"

#include <string>
#include <utility>

#include "automation/ResumeNext.h"
#include "forms/MsgBox.h"
#include "settings/AutoColorCommands.h"
#include "settings/mReadWrite.h"

namespace kestrune::settings {

using automation::ResumeNext;
using core::SharedState;

namespace {

constexpr std::string_view maker = "Brannoch";

// The path of the user's own file; empty for a user who has no place for one.
std::string own_path(const SharedState& shared) {
    std::string path;
    ResumeNext(shared.trace).assign(path, [&] { return user_preferences_path(shared); });
    return path;
}

std::shared_ptr<cUserSettings> settings_in(const SharedState& shared, const std::string& path) {
    std::shared_ptr<cUserSettings> settings;
    if (path.empty()) return settings;
    ResumeNext(shared.trace).assign(settings, [&] { return load_preferences(shared, path, maker); });
    return settings;
}

void tell_replacement(const SharedState& shared) {
    forms::MsgBox(shared.presenter, shared.general().message(core::Text::PreferencesReplaced), forms::vbOKOnly,
                  core::product_title);
}

}  // namespace

void use_settings(SharedState& shared, std::shared_ptr<cUserSettings> settings) {
    shared.user_settings = std::move(settings);
    const ResumeNext attempt(shared.trace);
    bool training = true;
    attempt.assign(training, [&] { return shared.general().allows_training(); });
    // An installation without the tutorial shows no menu for it, whatever the user chose on another machine.
    if (!training) shared.user_settings->TrainingModule = false;
    hand_over_auto_color(shared);
}

void load_settings(SharedState& shared, bool report_problems) {
    const ResumeNext attempt(shared.trace);
    const std::string path = own_path(shared);
    auto settings = settings_in(shared, path);
    if (!settings) {
        const bool told =
            report_problems && !path.empty() && (shared.tells_newcomers || shared.general().file_exists(path));
        if (told) attempt([&] { tell_replacement(shared); });
        settings = std::make_shared<cUserSettings>();
        settings->LoadDefaults(default_sources(shared));
        attempt([&] {
            if (path.empty()) return;
            static_cast<void>(keep_unreadable(shared, path));
            save_preferences(shared, *settings, path);
        });
    }
    use_settings(shared, std::move(settings));
}

void reload_settings(SharedState& shared) {
    if (auto settings = settings_in(shared, own_path(shared))) use_settings(shared, std::move(settings));
}

}  // namespace kestrune::settings
