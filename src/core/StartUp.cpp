#include "core/StartUp.h"

#include "automation/ResumeNext.h"
#include "core/ExamplesWorkbook.h"
#include "core/bridges/Product.h"
#include "core/diHotKeys.h"
#include "core/diUndoRedo.h"
#include "forms/MsgBox.h"
#include "settings/LiveSettings.h"

namespace kestrune::core {

bool start_up(const std::shared_ptr<SharedState>& state) {
    SharedState& shared = *state;
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
    attempt([&] { shared.general().register_hot_keys(std::make_shared<diHotKeys>(state)); });
    attempt([&] { shared.spreadsheet().register_callback(std::make_shared<diUndoRedo>(state)); });
    bool show_examples = false;
    attempt.assign(show_examples, [&] { return shared.general().shows_examples_at_start(); });
    attempt([&] { shared.general().set_hot_key_product(shared.general().constant(0)); });
    // A first start, which shows the examples, has no settings yet, and nothing is wrong with that.
    settings::load_settings(shared, !show_examples);
    shared.command_collection = std::make_unique<std::vector<automation::Value>>();
    shared.counter = 0;
    if (show_examples) show_examples_workbook(shared);
    return true;
}

void shut_down(SharedState& shared) {
    shared.xl.reset();
    shared.application.reset();
    shared.add_in_workbook.reset();
    shared.product_menu.reset();
    shared.spreadsheet_library.reset();
    shared.general_library.reset();
    shared.user_settings.reset();
    shared.command_collection.reset();
}

}  // namespace kestrune::core
