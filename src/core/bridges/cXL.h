#pragma once

#include <utility>

#include "automation/Object.h"

namespace kestrune::core {

// Keeps the Excel application for the routines that work on the spreadsheet.
class cXL {
  public:
    void Init(automation::ObjectRef application) { application_ = std::move(application); }
    [[nodiscard]] const automation::ObjectRef& application() const { return application_; }

  private:
    automation::ObjectRef application_;
};

}  // namespace kestrune::core
