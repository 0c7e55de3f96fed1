#pragma once

#include <windows.h>

#include <oaidl.h>

#include <memory>

#include "automation/Value.h"

namespace kestrune::windows {

struct DestroySafeArray {
    void operator()(SAFEARRAY* array) const noexcept { SafeArrayDestroy(array); }
};
using SafeArray = std::unique_ptr<SAFEARRAY, DestroySafeArray>;

// A copy, whatever the elements' type; an array that was never dimensioned has no elements. Fails with type-mismatch
// for more than two dimensions.
automation::Array to_array(SAFEARRAY* array);

// Of VARIANTs, with the same bounds.
SafeArray to_safe_array(const automation::Array& array);

// Writes an array over another: into its elements where the bounds are the same, else as a new array of the same
// element type in its place. Fails with type-mismatch for a fixed array of other bounds and for elements that do not
// convert.
void assign(SAFEARRAY*& target, VARTYPE element_type, const automation::Array& array);

}  // namespace kestrune::windows
