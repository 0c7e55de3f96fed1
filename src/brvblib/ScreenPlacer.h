#pragma once

#include <optional>

#include "automation/Object.h"

namespace kestrune::brvblib {

// A share of the part of a screen that windows may use.
struct Share {
    double left = 0;
    double top = 0;
    double width = 1;
    double height = 1;
};

// Places windows by the system's own means, which knows screens and their work areas where Excel does not.
class ScreenPlacer {
  public:
    virtual ~ScreenPlacer() = default;

    // Gives the window of Excel's Application a share of the screen that it stands on, or maximises it when there is no
    // share. False, with nothing done, when the window cannot be reached.
    virtual bool place(automation::Object& application, const std::optional<Share>& share) const = 0;
};

}  // namespace kestrune::brvblib
