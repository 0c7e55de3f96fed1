#pragma once

#include "automation/Trace.h"
#include "brxllib/Surroundings.h"

namespace kestrune::brxllib {

// Lets CreateObject("BRXLLib.iPublic") make the spreadsheet library. The trace and what the library is surrounded with
// outlive every object made.
void register_library(const automation::Trace& trace, const Surroundings& around = {});

}  // namespace kestrune::brxllib
