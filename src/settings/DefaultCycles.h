#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "settings/NumericCycle.h"
#include "settings/StyleCycle.h"

namespace kestrune::settings {

// What a style SmartCycle is called and steps through until the user changes it.
struct DefaultCycle {
    StyleCycle field;
    std::string_view display_name;
    std::vector<std::string_view> steps;  // names of styles of the library, in cycle order
};

// What a numeric SmartCycle is called and steps through until the user changes it. A name that is empty is the one that
// the AutoColor service designates.
struct DefaultNumericCycle {
    NumericCycle field;
    std::string_view display_name;
    std::vector<double> steps;  // indent levels, points, characters or BGR colours
};

// One row for each, in the order of the settings record.
std::span<const DefaultNumericCycle> default_numeric_cycles();

// One row for each style SmartCycle, in the order in which the defaults are loaded.
std::span<const DefaultCycle> default_cycles();

}  // namespace kestrune::settings
