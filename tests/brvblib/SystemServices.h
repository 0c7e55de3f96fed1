#pragma once

#include "brvblib/Services.h"

namespace kestrune::brvblib {

// Gives the library this system's own files and XML parser: the same tests run on Linux, and under Wine on MSXML.
void add_system_services(Services& services);

}  // namespace kestrune::brvblib
