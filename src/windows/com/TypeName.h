#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace kestrune::windows {

// The name of a type as its library has it; empty when it tells none.
std::string type_info_name(ITypeInfo& info);

// The class of an object as Visual Basic's TypeName has it: by its class information, else by its interface's name
// without the underscore that hides one. "Object" when it tells neither.
std::string read_type_name(IDispatch& object);

}  // namespace kestrune::windows
