#pragma once

#include <string_view>

#include "automation/AutomationError.h"

namespace kestrune::host {

// Fails as Excel does when it refuses a call: error 1004. member as "Range.NumberFormat"; why is one line.
[[noreturn]] inline void refuse(std::string_view member, std::string_view why) {
    throw automation::AutomationError(automation::hresult::excel_error, member, why);
}

// A position that a collection does not have: error 9, as Visual Basic's arrays.
[[noreturn]] inline void refuse_index(std::string_view member, std::string_view why) {
    throw automation::AutomationError(automation::hresult::bad_index, member, why);
}

}  // namespace kestrune::host
