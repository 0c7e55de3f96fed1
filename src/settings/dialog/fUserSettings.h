#pragma once

#include <array>

#include "settings/dialog/AutoColorPage.h"
#include "settings/dialog/GeneralPage.h"
#include "settings/dialog/OtherCyclesPage.h"
#include "settings/dialog/SmartToolsPage.h"
#include "settings/dialog/StyleCyclesPage.h"
#include "settings/dialog/StylesPage.h"

namespace kestrune::settings {

// The settings dialog. It works on a copy of the settings in use; OK and Apply save the copy to the user's file and
// then have the add-in work by it, Cancel forgets it. When saving fails, a message says why and the dialog stays.
class fUserSettings : public forms::Form {
  public:
    // All that it is given outlives it.
    fUserSettings(core::SharedState& shared, const SmartTools& tools);

  private:
    void show_draft();
    void page_chosen();
    // Whether what the pages hold was taken into the draft; the first that could not be is gone to.
    bool take_all();
    // Whether it was taken, saved and handed over.
    bool apply();
    void import();

    core::SharedState& shared_;
    Draft draft_;
    GeneralPage general_;
    AutoColorPage auto_color_;
    SmartToolsPage smart_tools_;
    StyleCyclesPage style_cycles_;
    OtherCyclesPage other_cycles_;
    StylesPage styles_;
    std::array<SettingsPage*, 6> pages_;  // in their order
};

// Shows it.
void ShowUserSettings(core::SharedState& shared, const SmartTools& tools);

}  // namespace kestrune::settings
