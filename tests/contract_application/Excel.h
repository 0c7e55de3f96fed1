#pragma once

#include "automation/Object.h"

namespace kestrune::contract {

// The Application object of an Excel of its own, without a workbook. In one process or through COM: each build has one
// implementation.
automation::ObjectRef new_excel();

}  // namespace kestrune::contract
