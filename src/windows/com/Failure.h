#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "automation/AutomationError.h"

namespace kestrune::windows {

// Fails with AutomationError when COM answered a failure; `what` names the thing that failed.
void check(HRESULT result, std::string_view what);

// The system's line for a code ("Class not registered"), or the code itself where the system has none.
std::string system_text(HRESULT code);

// For catch-alls: what the exception being handled means to a COM caller. bad_alloc is E_OUTOFMEMORY, an
// AutomationError its code, anything else E_UNEXPECTED.
struct Caught {
    HRESULT code = E_UNEXPECTED;
    std::string member;
    std::string description;
    bool wrong_call = false;              // the call did not fit the member, which did not run
    std::optional<std::size_t> argument;  // the argument of the wrong type, by its place among the parameters
};
Caught caught() noexcept;

// Runs the body of a COM entry point. Nothing escapes; what is thrown becomes the result.
template <class Body>
HRESULT guarded(Body&& body) noexcept {
    try {
        return body();
    } catch (...) {
        return caught().code;
    }
}

}  // namespace kestrune::windows
