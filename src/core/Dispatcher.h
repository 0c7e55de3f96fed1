#pragma once

#include "automation/Value.h"
#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Runs a command request ("19", "20.3", 19). False when no command may run now or the add-in is not loaded; then
// nothing happens. Otherwise True, also when the request is no command's: then nothing runs between the beginning
// and the end of the command bracket. Nothing that fails leaves it.
bool dispatch(SharedState& shared, const automation::Value& request);

// Whether a command may run now: the add-in is loaded, a workbook is active, and Excel takes calls.
bool may_run_command(const SharedState& shared);

}  // namespace kestrune::core
