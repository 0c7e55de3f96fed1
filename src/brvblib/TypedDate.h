#pragma once

#include <optional>
#include <string_view>

#include "automation/Value.h"

namespace kestrune::brvblib {

// The date, time or both that a person typed, as en-US writes them: "1/31/2026", "1/31/26", "1/31" (of this year),
// "2026-01-31", "31-Jan-26", "January 31, 2026", "Jan 2026" (its first day), "9:30", "9:30:15 PM", "1/31/2026 9:30 AM".
// Years of two digits are those from 1930 to 2029; days and months change places where only that gives a date. Nothing
// for anything else, plain numbers among it.
std::optional<automation::Date> typed_date(std::string_view text, automation::Date today);

}  // namespace kestrune::brvblib
