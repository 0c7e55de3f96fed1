#pragma once

#include "brvblib/Services.h"

namespace kestrune::brvblib {

// Lets CreateObject("BRVBLib.iPublic") make the general library.
void register_library(Services services);

}  // namespace kestrune::brvblib
