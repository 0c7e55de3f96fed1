#pragma once

#include "settings/dialog/SmartTool.h"

namespace kestrune::smart {

// The tools whose options the settings dialog shows.
const settings::SmartTools& tools_with_options();

}  // namespace kestrune::smart
