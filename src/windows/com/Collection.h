#pragma once

#include "automation/MemberTable.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {

// Whether objects of a class can be gone through with For Each: they have Count and Item.
bool is_collection(const automation::MemberTable& table);

// An IEnumVARIANT over Item(1) to Item(Count).
Variant enumerate(const automation::ObjectRef& collection);

}  // namespace kestrune::windows
