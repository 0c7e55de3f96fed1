#pragma once

#include <windows.h>

#include <oaidl.h>

#include "automation/Object.h"
#include "windows/com/ComPtr.h"

namespace kestrune::windows {

// Type information for an object that no type library describes: what TypeName and name look-ups need. Descriptions
// of functions are E_NOTIMPL, which late-bound clients take for "look it up by name".
ComPtr<ITypeInfo> member_type_info(const automation::ObjectRef& object);

}  // namespace kestrune::windows
