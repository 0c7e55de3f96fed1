#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string_view>

#include "automation/Value.h"
#include "windows/com/ComPtr.h"

namespace kestrune::windows {

// The object behind an interface: one of this module's own as itself, any other as a ComClient, what For Each asks for
// as an Enumeration; Nothing for null. Fails with type-mismatch for an object without IDispatch.
automation::ObjectRef object_of(IUnknown* object);
automation::ObjectRef object_of(IDispatch* object);

// The interface of an object: another program's own, or a ComServer. While anybody holds the interface of an object,
// it is the same one each time. Null for Nothing.
ComPtr<IDispatch> dispatch_of(const automation::ObjectRef& object);

// Called by a server that goes.
class ComServer;
void forget(const ComServer& server) noexcept;

// A text that SysFreeString frees.
[[nodiscard]] BSTR to_bstr(std::string_view text);

}  // namespace kestrune::windows
