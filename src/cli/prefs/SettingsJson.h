#pragma once

#include <nlohmann/json.hpp>

#include "settings/cUserSettings.h"

namespace kestrune::cli {

// Settings under the names and in the order of preferences files. Colours are BGR numbers, dates texts such as
// "2026-01-31"; a style that is referred to is its name, empty for none.
nlohmann::ordered_json settings_json(const settings::cUserSettings& settings);

}  // namespace kestrune::cli
