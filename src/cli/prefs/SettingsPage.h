#pragma once

#include <string>

#include "settings/cUserSettings.h"

namespace kestrune::cli {

// Settings as a page for a person. Single settings stand under the names by which --set takes them; colours are
// #RRGGBB. path: the file that they come from.
std::string settings_page(const settings::cUserSettings& settings, const std::string& path);

}  // namespace kestrune::cli
