#pragma once

#include <windows.h>

#include <oaidl.h>

#include "automation/Value.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {

// Whether what a caller handed over can be written back to.
inline bool is_reference(const VARIANT& argument) { return V_ISBYREF(&argument); }

// Writes a value where a by-reference argument points, in the type of the reference. Fails with type-mismatch or
// overflow, and then writes nothing, when the value does not convert.
void assign(const VARIANT& reference, const automation::Value& value);

// Changes a VARIANT to a type by OLE's rules; fails as `assign`.
void coerce(Variant& variant, VARTYPE type);

}  // namespace kestrune::windows
