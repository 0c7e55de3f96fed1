#pragma once

#include "automation/Value.h"
#include "core/bridges/SharedState.h"

namespace kestrune::core {

// What the general library's hot-key table knows of this product's commands.

// Appends one entry a command, by number, to a one-dimensional array; what stands there stays, and so does its lower
// bound. Empty counts as an array without entries, counted from 0. Fails with type-mismatch for anything else.
//
// An entry is an array of seven, counted from 0: the command's name, what it does, its default key, its menu group, its
// topic in the examples workbook; the key that the user chose, none yet (""); whether that key is switched off, not yet
// (0). A text that the library does not have is "".
void append_command_entries(const SharedState& shared, automation::Value& array);

}  // namespace kestrune::core
