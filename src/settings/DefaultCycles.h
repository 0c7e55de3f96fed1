#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "settings/StyleCycle.h"

namespace kestrune::settings {

// What a style SmartCycle is called and steps through until the user changes it.
struct DefaultCycle {
    StyleCycle field;
    std::string_view display_name;
    std::vector<std::string_view> steps;  // names of styles of the library, in cycle order
};

// One row for each style SmartCycle, in the order in which the defaults are loaded.
std::span<const DefaultCycle> default_cycles();

}  // namespace kestrune::settings
