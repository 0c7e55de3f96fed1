#pragma once

#include <windows.h>

#include <unknwn.h>

#include "automation/CreateObject.h"

namespace kestrune::windows {

// The class object that DllGetClassObject answers: an IClassFactory whose instances are what `create` makes, each
// served over IDispatch. Aggregation is refused with CLASS_E_NOAGGREGATION.
HRESULT get_class_object(automation::ClassFactory create, REFIID interface_id, void** object) noexcept;

}  // namespace kestrune::windows
