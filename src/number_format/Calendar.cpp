#include "number_format/Calendar.h"

#include <array>

namespace kestrune::number_format {
namespace {

constexpr std::int64_t last_serial = 2'958'465;        // December 31, 9999 in the 1900 system
constexpr std::int64_t days_to_1904 = 1'462;           // January 1, 1904 in the 1900 system
constexpr std::int64_t leap_day_1900 = 60;             // the day that never was
constexpr std::int64_t serial_of_civil_zero = 25'569;  // January 1, 1970

constexpr bool is_leap(std::int64_t year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

std::int32_t days_in_month(std::int64_t year, std::int32_t month) {
    constexpr std::array<std::int32_t, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month == 2 && is_leap(year)) return 29;
    return days[static_cast<std::size_t>(month - 1)];
}

// Days since January 1, 1970 in the Gregorian calendar. Years start in March, so that leap days come last.
std::int64_t civil_days(std::int64_t year, std::int32_t month, std::int32_t day) {
    if (month <= 2) --year;
    const std::int64_t era = year / 400;
    const std::int64_t year_of_era = year - era * 400;
    const std::int64_t day_of_year = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    return era * 146'097 + year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year - 719'468;
}

CalendarDate civil_date(std::int64_t days) {
    days += 719'468;
    const std::int64_t era = days / 146'097;
    const std::int64_t day_of_era = days - era * 146'097;
    const std::int64_t year_of_era =
        (day_of_era - day_of_era / 1'460 + day_of_era / 36'524 - day_of_era / 146'096) / 365;
    const std::int64_t day_of_year = day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
    const std::int64_t month = (5 * day_of_year + 2) / 153;
    CalendarDate date;
    date.day = static_cast<std::int32_t>(day_of_year - (153 * month + 2) / 5 + 1);
    date.month = static_cast<std::int32_t>(month < 10 ? month + 3 : month - 9);
    date.year = static_cast<std::int32_t>(year_of_era + era * 400 + (date.month <= 2 ? 1 : 0));
    return date;
}

}  // namespace

std::optional<CalendarDate> date_from_serial(std::int64_t serial, bool date1904) {
    if (serial < 0) return std::nullopt;
    if (serial > last_serial) return std::nullopt;
    if (date1904) serial += days_to_1904;
    if (serial > last_serial) return std::nullopt;
    CalendarDate date;
    if (serial == 0)
        date = {1900, 1, 0, 0};
    else if (serial == leap_day_1900)
        date = {1900, 2, 29, 0};
    else
        date = civil_date(serial - serial_of_civil_zero + (serial < leap_day_1900 ? 1 : 0));
    // Excel counts weekdays through the day that never was, so that the first of January 1900 is a Sunday.
    date.weekday = static_cast<std::int32_t>((serial + 6) % 7);
    return date;
}

std::optional<std::int64_t> serial_from_date(const CalendarDate& date, bool date1904) {
    std::int64_t serial = 0;
    if (!date1904 && date.year == 1900 && date.month == 1 && date.day == 0) return 0;
    if (!date1904 && date.year == 1900 && date.month == 2 && date.day == 29) return leap_day_1900;
    if (date.year < 1900 || date.year > 9999 || date.month < 1 || date.month > 12 || date.day < 1 ||
        date.day > days_in_month(date.year, date.month))
        return std::nullopt;
    serial = civil_days(date.year, date.month, date.day) + serial_of_civil_zero;
    if (serial <= leap_day_1900) --serial;
    if (date1904) serial -= days_to_1904;
    if (serial < 0) return std::nullopt;
    return serial;
}

}  // namespace kestrune::number_format
