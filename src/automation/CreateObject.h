#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "automation/Object.h"

namespace kestrune::automation {

// A new object of a class ("BRVBLib.iPublic"): of one that this process registered, else of one that a class source
// knows, as COM does on Windows. Fails with class-not-registered when nobody knows the name.
ObjectRef CreateObject(std::string_view prog_id);

// What answers CreateObject. Process-wide, as the machine's class registry is on Windows; the program
// that wires things together fills it once.
using ClassFactory = std::function<ObjectRef()>;
void register_class(std::string prog_id, ClassFactory factory);
void unregister_class(std::string_view prog_id);

// What is asked for classes that this process did not register. Fails as CreateObject does.
using ClassSource = std::function<ObjectRef(std::string_view prog_id)>;
void use_class_source(ClassSource source);

}  // namespace kestrune::automation
