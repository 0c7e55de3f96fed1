#pragma once

#include "settings/dialog/SettingsPage.h"
#include "settings/dialog/SmartTool.h"

namespace kestrune::settings {

// The Smart tools: whether each shows its options first, and the options, in the tool's own dialog.
class SmartToolsPage final : public SettingsPage {
  public:
    SmartToolsPage(forms::Form& form, Draft& draft, const SmartTools& tools);

    void show() override;

  private:
    void edit(const SmartTool& tool);

    const SmartTools& tools_;
};

}  // namespace kestrune::settings
