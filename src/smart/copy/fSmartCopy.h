#pragma once

#include "core/bridges/SharedState.h"
#include "forms/Form.h"
#include "settings/SmartOptions.h"
#include "smart/copy/Direction.h"

namespace kestrune::smart {

// The dialog of Smart Copy. OK writes the options back, when the interval is one; Cancel leaves them alone.
class fSmartCopy : public forms::Form {
  public:
    // All that it is given outlives it.
    fSmartCopy(const core::SharedState& shared, const CopyDirection& direction, settings::SmartCopyOptions& options);

    // Whether the person pressed OK.
    [[nodiscard]] bool confirmed() const { return confirmed_; }

  private:
    void UserForm_Activate();
    void txtInterval_Change();
    void spnValue_Change();
    void ckbValues_Change();
    void btnOK_Click();

    const core::SharedState& shared_;
    const CopyDirection& direction_;
    settings::SmartCopyOptions& options_;
    bool confirmed_ = false;
};

// The largest interval: no sheet has more lines between two others.
inline constexpr std::int32_t longest_interval = 1'048'575;

}  // namespace kestrune::smart
