#include "core/StartUp.h"

#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "forms/MsgBox.h"
#include "settings/AutoColorCommands.h"
#include "settings/cUserSettings.h"

namespace kestrune::core {

bool start_up(SharedState& shared) {
    shared.general_library = std::make_shared<diBRVBLib>(shared.trace);
    if (!shared.general_library->Create()) {
        forms::MsgBox(shared.presenter,
                      "Unable to load the Brannoch VB Library from Kestrune.  Please contact technical support.",
                      forms::vbCritical, product_title);
        return false;
    }
    shared.spreadsheet_library = std::make_shared<diBRXLLib>(shared.trace);
    if (!shared.spreadsheet_library->Create()) {
        forms::MsgBox(shared.presenter,
                      "Unable to load the BR Excel Library from Kestrune.  Please contact technical support.",
                      forms::vbCritical, product_title);
        return false;
    }
    const automation::ResumeNext attempt(shared.trace);
    shared.user_settings = std::make_shared<settings::cUserSettings>();
    AutoColorSettings auto_color;
    attempt.assign(auto_color, [&] { return shared.spreadsheet().auto_color_defaults(); });
    attempt([&] { shared.user_settings->LoadDefaults(auto_color); });
    settings::hand_over_auto_color(shared);
    shared.command_collection = std::make_unique<std::vector<automation::Value>>();
    shared.counter = 0;
    return true;
}

void shut_down(SharedState& shared) {
    shared.xl.reset();
    shared.application.reset();
    shared.add_in_workbook.reset();
    shared.spreadsheet_library.reset();
    shared.general_library.reset();
    shared.user_settings.reset();
    shared.command_collection.reset();
}

}  // namespace kestrune::core
