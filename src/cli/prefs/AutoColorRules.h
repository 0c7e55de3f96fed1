#pragma once

#include <string>
#include <vector>

#include "brxllib/autocolor/Settings.h"

namespace kestrune::cli {

// How AutoColor works by a preferences file, the user's own for an empty path, with some settings changed (NAME=VALUE).
// The defaults while the user has none. Failure when the file cannot be read, UsageError for what no setting takes.
brxllib::AutoColorSettings auto_color_rules(const std::string& preferences, const std::vector<std::string>& changes);

}  // namespace kestrune::cli
