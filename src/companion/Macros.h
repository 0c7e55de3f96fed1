#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrune::companion {

// The procedures that a module's code defines, in its order: "RunMacro" for a line Public Sub RunMacro(...).
std::vector<std::string> procedures_of(std::string_view code);

// A Sub for every member of iGlobal that the code of mDOM has none for; they take no arguments, as macros that menus
// name do.
std::string member_macros(std::string_view code);

}  // namespace kestrune::companion
