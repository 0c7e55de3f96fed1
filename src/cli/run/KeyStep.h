#pragma once

#include <string>

#include "cli/OpenWorkbook.h"
#include "keys/Key.h"

namespace kestrune::cli {

// What pressing a key did, for a person.
struct KeyReport {
    std::string key;  // in its own spelling
    std::string did;  // "Currency SmartCycle", "switches bold"
    bool ran = false;
};

// Presses a key in the workbook: what it is bound to runs, else what it does in Excel. Failure for a key that does
// nothing here, and for a command that this version does not have.
KeyReport run_key_step(OpenWorkbook& book, const keys::Key& key);

}  // namespace kestrune::cli
