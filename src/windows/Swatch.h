#pragma once

#include <cstdint>

#include "automation/Value.h"

namespace kestrune::windows {

// A picture for the face of a menu's button: a square of a BGR color with a gray edge, an IPictureDisp.
// AutomationError when Windows makes none.
automation::Value swatch(std::int32_t color);

}  // namespace kestrune::windows
