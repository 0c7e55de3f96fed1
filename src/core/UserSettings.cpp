#include "core/UserSettings.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "settings/AutoColorCommands.h"
#include "settings/cUserSettings.h"

namespace kestrune::core {
namespace {

using automation::ResumeNext;
using automation::Value;

// The settings of a fresh installation.
std::shared_ptr<settings::cUserSettings> default_settings(const SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    auto record = std::make_shared<settings::cUserSettings>();
    AutoColorSettings auto_color;
    attempt.assign(auto_color, [&] { return shared.spreadsheet().auto_color_defaults(); });
    attempt([&] { record->LoadDefaults(auto_color); });
    attempt.assign(record->TrainingModule, [&] {
        const Value installed = shared.general().machine_value("TT");
        return installed.is(Value::Kind::Empty) || automation::to_boolean(installed);
    });
    return record;
}

}  // namespace

void load_user_settings(SharedState& shared, bool) {
    const ResumeNext attempt(shared.trace);
    shared.user_settings = default_settings(shared);
    bool training = true;
    attempt.assign(training, [&] { return shared.general().allows_training(); });
    // An installation without the tutorial shows no menu for it, whatever the user chose on another machine.
    if (!training) shared.user_settings->TrainingModule = false;
    settings::hand_over_auto_color(shared);
}

}  // namespace kestrune::core
