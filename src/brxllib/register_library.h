#pragma once

#include "automation/Trace.h"

namespace kestrune::brxllib {

// Lets CreateObject("BRXLLib.iPublic") make the spreadsheet library. The trace outlives every object made.
void register_library(const automation::Trace& trace);

}  // namespace kestrune::brxllib
