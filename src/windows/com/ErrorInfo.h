#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>

#include "windows/com/Failure.h"

namespace kestrune::windows {

// What a failed IDispatch::Invoke tells its caller. `info` may be null. What a member threw is DISP_E_EXCEPTION with
// the code, the description and the member as the source; a call that did not fit is its own HRESULT. Either way the
// thread's error object says the same.
HRESULT report(const Caught& failure, EXCEPINFO* info) noexcept;

// What another program's failed call means, read from what it filled in. Frees the EXCEPINFO's texts.
struct Failed {
    HRESULT code;
    std::string description;
};
Failed read_failure(HRESULT result, EXCEPINFO& info, IUnknown& object);

}  // namespace kestrune::windows
