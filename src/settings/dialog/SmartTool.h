#pragma once

#include <array>
#include <string_view>

#include "core/bridges/SharedState.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// What the settings dialog offers of a Smart tool; the tools themselves are not known here.
struct SmartTool {
    std::string_view check;   // the control with the tool's name
    std::string_view button;  // that shows its options
    bool& (*shows)(cUserSettings& settings);
    // Shows the tool's own dialog, which changes the settings in use.
    void (*edit)(core::SharedState& shared);
};

// In the order of the dialog.
using SmartTools = std::array<SmartTool, 6>;

}  // namespace kestrune::settings
