#pragma once

#include <string>

#include "brvblib/Services.h"

namespace kestrune::windows {

// What the general library gets on Windows. installation_folder: where the library's own DLL lies. The trace and the
// presenter outlive the library's objects.
brvblib::Services services(const automation::Trace& trace, forms::Presenter& presenter,
                           const std::string& installation_folder);

// The user's roaming folder for the product, "...\Brannoch\Kestrune\"; empty for a user without a profile.
std::string data_folder();

}  // namespace kestrune::windows
