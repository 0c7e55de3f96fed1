#pragma once

#include "core/bridges/SharedState.h"
#include "forms/Form.h"
#include "settings/SmartOptions.h"

namespace kestrune::smart {

// The dialog of Smart Fill Numbers. OK writes the options back when the series can be filled.
class fSmartFillNumbers : public forms::Form {
  public:
    // All that it is given outlives it.
    fSmartFillNumbers(const core::SharedState& shared, settings::SmartFillNumbersOptions& options);

    // Whether the person pressed OK.
    [[nodiscard]] bool confirmed() const { return confirmed_; }

  private:
    void UserForm_Activate();
    void btnOK_Click();

    const core::SharedState& shared_;
    settings::SmartFillNumbersOptions& options_;
    bool confirmed_ = false;
};

}  // namespace kestrune::smart
