#pragma once

#include <string>

#include "brvblib/Services.h"

namespace kestrune::native {

// What the general library gets on Linux. Nothing opens on a desktop: a program that wants that gives one. The trace
// and the presenter outlive the library's objects.
brvblib::Services services(const automation::Trace& trace, forms::Presenter& presenter,
                           const std::string& installation_folder);

}  // namespace kestrune::native
