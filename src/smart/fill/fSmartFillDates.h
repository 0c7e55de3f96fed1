#pragma once

#include "core/bridges/SharedState.h"
#include "forms/Form.h"
#include "settings/SmartOptions.h"

namespace kestrune::smart {

// The dialog of Smart Fill Dates. OK writes the options back when the series can be filled.
class fSmartFillDates : public forms::Form {
  public:
    // All that it is given outlives it.
    fSmartFillDates(const core::SharedState& shared, settings::SmartFillDatesOptions& options);

    // Whether the person pressed OK.
    [[nodiscard]] bool confirmed() const { return confirmed_; }

  private:
    void UserForm_Activate();
    void offer_period_ends();
    void cmbPeriodEnd_Click();
    void btnOK_Click();

    const core::SharedState& shared_;
    settings::SmartFillDatesOptions& options_;
    bool confirmed_ = false;
};

}  // namespace kestrune::smart
