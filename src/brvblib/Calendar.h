#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "automation/Value.h"

namespace kestrune::brvblib {

// A date of OLE taken apart: the day, and milliseconds into it.
struct Moment {
    std::chrono::sys_days day;
    std::int64_t milliseconds = 0;
};

inline constexpr std::int64_t milliseconds_a_day = 86'400'000;

// Between Moment and OLE's days since 30 December 1899. Before that day OLE counts days backwards and the time forwards
// all the same. A serial outside the years 100 to 9999 fails with type-mismatch.
Moment moment_of(automation::Date date);
automation::Date date_of(const Moment& moment);

// "11/22/2026 9:05:00 PM" as en-US shows dates; midnight is left out, as is the day of a mere time.
std::string date_text(automation::Date date);

// The date an interval later, as Visual Basic's DateAdd has it: "yyyy", "q", "m", "y", "d", "w", "ww", "h", "n", "s".
// A month that is too short gives its last day. Any other interval, or a date out of range, fails with type-mismatch.
automation::Date date_later(automation::Date date, const std::string& interval, double count);

// This moment by the local clock, to the second.
automation::Date local_now();

}  // namespace kestrune::brvblib
