#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "automation/Object.h"

namespace kestrune::automation {

// A new object of a registered class ("BRVBLib.iPublic"). On Windows COM knows the classes; elsewhere
// this process does. Fails with class-not-registered when nobody registered the name.
ObjectRef CreateObject(std::string_view prog_id);

// What answers CreateObject. Process-wide, as the machine's class registry is on Windows; the program
// that wires things together fills it once.
using ClassFactory = std::function<ObjectRef()>;
void register_class(std::string prog_id, ClassFactory factory);
void unregister_class(std::string_view prog_id);

}  // namespace kestrune::automation
