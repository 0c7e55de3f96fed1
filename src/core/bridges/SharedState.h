#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "automation/AutomationError.h"
#include "automation/Object.h"
#include "automation/Trace.h"
#include "core/bridges/cXL.h"
#include "core/bridges/diBRVBLib.h"
#include "core/bridges/diBRXLLib.h"
#include "forms/Presenter.h"

namespace kestrune::settings {
class cUserSettings;
}

namespace kestrune::core {

// The objects that everything in the add-in works with: one set a loaded component, shared by every iPublic and
// iGlobal. Each reference is null until start-up has made it, and again after shut-down.
struct SharedState {
    SharedState(forms::Presenter& shown_by, const automation::Trace& told_to, std::string installed_in = {},
                std::string preferences_in = {})
        : presenter(shown_by),
          trace(told_to),
          installation_folder(std::move(installed_in)),
          preferences_file(std::move(preferences_in)) {}

    // What the component was wired with; presenter and trace outlive it.
    forms::Presenter& presenter;
    const automation::Trace& trace;
    const std::string installation_folder;  // the component's own, where its files lie beside it
    const std::string preferences_file;     // of the user, when it is not the one in their folder for data

    bool tells_newcomers = true;  // that the defaults are in use, to a user without a preferences file

    std::shared_ptr<cXL> xl;
    automation::ObjectRef application;      // Excel's Application
    automation::ObjectRef add_in_workbook;  // the companion workbook
    automation::ObjectRef product_menu;     // in Excel's menu bar; Nothing while nobody looked for it
    std::shared_ptr<diBRVBLib> general_library;
    std::shared_ptr<diBRXLLib> spreadsheet_library;
    std::shared_ptr<settings::cUserSettings> user_settings;
    std::unique_ptr<std::vector<automation::Value>> command_collection;
    std::int32_t counter = 0;

    // The same objects for a statement that needs them: object-required where the reference is null.
    [[nodiscard]] diBRVBLib& general() const { return required(general_library, "the general library"); }
    [[nodiscard]] diBRXLLib& spreadsheet() const { return required(spreadsheet_library, "the spreadsheet library"); }
    [[nodiscard]] settings::cUserSettings& settings() const { return required(user_settings, "the user settings"); }

  private:
    template <class T>
    static T& required(const std::shared_ptr<T>& object, std::string_view name) {
        if (!object) throw automation::AutomationError(automation::hresult::object_required, name, "not loaded");
        return *object;
    }
};

}  // namespace kestrune::core
