#pragma once

#include <string>

namespace kestrune::windows {

// GetLastError in Windows' own words, one line.
std::string last_failure();

}  // namespace kestrune::windows
