#pragma once

#include "automation/Trace.h"
#include "brvblib/ProductSettings.h"

namespace kestrune::brvblib {

// Lets CreateObject("BRVBLib.iPublic") make the general library. The trace outlives every object made.
void register_library(const automation::Trace& trace, ProductSettings settings = {});

}  // namespace kestrune::brvblib
