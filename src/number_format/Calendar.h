#pragma once

#include <cstdint>
#include <optional>

namespace kestrune::number_format {

// A day as Excel shows it. In the 1900 system day 0 is "January 0, 1900" and February 29, 1900 exists.
struct CalendarDate {
    std::int32_t year = 1900;
    std::int32_t month = 1;    // 1 to 12
    std::int32_t day = 1;      // 0 to 31
    std::int32_t weekday = 0;  // 0 is Sunday

    bool operator==(const CalendarDate&) const = default;
};

// The day that a whole serial number stands for; nothing before the system's first day and after December 31, 9999.
[[nodiscard]] std::optional<CalendarDate> date_from_serial(std::int64_t serial, bool date1904 = false);

// The serial number of a day; nothing for a day that the calendar does not have. The weekday is not looked at.
[[nodiscard]] std::optional<std::int64_t> serial_from_date(const CalendarDate& date, bool date1904 = false);

}  // namespace kestrune::number_format
