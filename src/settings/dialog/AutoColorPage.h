#pragma once

#include "settings/dialog/SettingsPage.h"

namespace kestrune::settings {

// The AutoColor switches and colours.
class AutoColorPage final : public SettingsPage {
  public:
    AutoColorPage(forms::Form& form, Draft& draft);

    void show() override;
    std::string take() override;

  private:
    // What the designated SmartCycle is for.
    void show_note() const;
};

}  // namespace kestrune::settings
