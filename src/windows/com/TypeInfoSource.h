#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string_view>

#include "automation/Object.h"
#include "windows/com/ComPtr.h"

namespace kestrune::windows {

// Gives the type information of a class's dispinterface from the module's type library, or null for a class that the
// library does not describe.
using TypeInfoSource = ComPtr<ITypeInfo> (*)(std::string_view class_name);

// Lets ComServer answer GetTypeInfo, and QueryInterface for the dispinterface's IID, from a type library.
void use_type_library(TypeInfoSource source) noexcept;

// Null when no library is in use or it does not describe the class.
ComPtr<ITypeInfo> library_type_info(std::string_view class_name);

// The coclass of the same name in the same library; null when there is none.
ComPtr<ITypeInfo> library_class_info(std::string_view class_name);

// From the library, else made from the object's member table: the class's name, and names and identifiers.
ComPtr<ITypeInfo> type_info_of(const automation::ObjectRef& object);

}  // namespace kestrune::windows
