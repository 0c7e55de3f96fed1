#pragma once

#include "automation/ResumeNext.h"
#include "core/bridges/SharedState.h"
#include "excel/Application.h"

namespace kestrune::core {

// The selected cells; Nothing when a chart or a shape is selected, or nothing at all.
[[nodiscard]] excel::Range selected_range(const SharedState& shared);

// The active sheet when it is a worksheet; Nothing without a workbook and for a chart.
[[nodiscard]] excel::Worksheet active_worksheet(const SharedState& shared);

// Keeps Excel from redrawing while more than 9 cells change one after another; fewer are drawn before anybody sees it.
class RedrawingPause {
  public:
    RedrawingPause(const SharedState& shared, const excel::Range& range);
    ~RedrawingPause();
    RedrawingPause(const RedrawingPause&) = delete;
    RedrawingPause& operator=(const RedrawingPause&) = delete;

  private:
    automation::ResumeNext attempt_;
    excel::Application application_;
    bool paused_ = false;
};

}  // namespace kestrune::core
