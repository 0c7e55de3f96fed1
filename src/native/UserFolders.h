#pragma once

#include <functional>
#include <optional>
#include <string>

namespace kestrune::native {

// Looks up a variable of the environment; nothing when it is not set.
using Environment = std::function<std::optional<std::string>(const char* name)>;
std::optional<std::string> environment_variable(const char* name);

// Where a desktop of Linux keeps things, by the XDG base directories: $XDG_CONFIG_HOME, else .config in
// the home folder; $XDG_CONFIG_DIRS, else /etc/xdg. Paths that are not absolute count as not set, as those demand.

// The user's folder for the product, ".../brannoch/kestrune/"; empty for a user without a home.
std::string data_folder(const Environment& environment = &environment_variable);

// The file of machine-wide product values, ".../brannoch/kestrune.conf": the first that is there, else where the first
// would be.
std::string product_file(const Environment& environment = &environment_variable);

}  // namespace kestrune::native
