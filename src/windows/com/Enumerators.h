#pragma once

#include <windows.h>

#include <oaidl.h>

#include <memory>

#include "automation/Enumeration.h"
#include "windows/com/ComPtr.h"

namespace kestrune::windows {

// What For Each asks a collection for, as other programs see ours and we see theirs.
ComPtr<IUnknown> enumerator_of(std::shared_ptr<automation::Enumeration> items);
std::shared_ptr<automation::Enumeration> enumeration_of(ComPtr<IEnumVARIANT> items);

}  // namespace kestrune::windows
