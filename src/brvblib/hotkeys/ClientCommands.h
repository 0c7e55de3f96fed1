#pragma once

#include <string>
#include <vector>

#include "automation/Object.h"
#include "automation/Trace.h"
#include "brvblib/hotkeys/HotKeyTable.h"

namespace kestrune::brvblib {

// The commands that a client's call-back appends to the command array of all clients (its AddDefaultMacroArray), which
// is given back longer. Of an entry, which is an array, elements 0 to 6 are the command's name, what it does, its
// default key, its group, its topic in the examples, the key that the user chose, and whether that key is switched off;
// missing ones are empty. A command's number is the entry's place among the client's own, from 0. What fails, and a
// default key that is none, is told to the trace.
std::vector<HotKeyCommand> ask_for_commands(const std::string& client, automation::Object& callback,
                                            automation::Value& array, const automation::Trace& trace);

}  // namespace kestrune::brvblib
