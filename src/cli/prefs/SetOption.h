#pragma once

#include <string>

#include "settings/cUserSettings.h"

namespace kestrune::cli {

// `--set GROUP.FIELD=VALUE`, or FIELD=VALUE for a setting that is in no group: gives one setting another value. Names
// are those of preferences files, whatever their case; colours may be written #RRGGBB, dates 2026-01-31. UsageError,
// naming the option and what is wrong, for anything that is no setting or no value of it.
void set_option(settings::cUserSettings& settings, const std::string& option);

}  // namespace kestrune::cli
