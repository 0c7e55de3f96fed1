#pragma once

#include <optional>
#include <string_view>

#include "forms/FormFill.h"

namespace kestrune::cli {

// What an option --set is to fill in: "fSmartCopy.optAll=True" names a dialog, whose names begin with "f" and a capital
// letter, and one of its controls. Nothing for the name of a setting.
std::optional<forms::FormFill> fill_option(std::string_view option);

}  // namespace kestrune::cli
