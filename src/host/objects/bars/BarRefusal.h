#pragma once

#include <string_view>

#include "automation/AutomationError.h"

namespace kestrune::host {

// How command bars refuse: "Invalid procedure call or argument", error 5.
[[noreturn]] inline void refuse_argument(std::string_view member, std::string_view why) {
    throw automation::AutomationError(automation::hresult::of(0x800A0005), member, why);
}

// What command bars answer for what is deleted, and for what cannot be done: "Unspecified failure".
[[noreturn]] inline void refuse_bar(std::string_view member, std::string_view why) {
    throw automation::AutomationError(automation::hresult::of(0x80004005), member, why);
}

}  // namespace kestrune::host
