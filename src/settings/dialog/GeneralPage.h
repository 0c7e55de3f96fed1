#pragma once

#include <span>

#include "settings/dialog/SettingsPage.h"

namespace kestrune::settings {

// Options that belong to no family of commands. The buttons that exchange files are the dialog's.
class GeneralPage final : public SettingsPage {
  public:
    GeneralPage(forms::Form& form, Draft& draft);

    void show() override;
    void show_styles() override;
    std::string take() override;
};

}  // namespace kestrune::settings
