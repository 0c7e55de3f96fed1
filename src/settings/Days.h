#pragma once

#include <chrono>
#include <optional>

#include "automation/Value.h"

namespace kestrune::settings {

// OLE counts days from here.
inline constexpr std::chrono::sys_days first_day{std::chrono::year(1899) / 12 / 30};

// A date of the years 100 to 9999; nothing for a day that no calendar has.
constexpr std::optional<automation::Date> day(int year, unsigned month, unsigned day_of_month) {
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day_of_month)};
    if (year < 100 || year > 9999 || !date.ok()) return std::nullopt;
    return automation::Date{static_cast<double>((std::chrono::sys_days(date) - first_day).count())};
}

constexpr int year_of(automation::Date date) {
    // The time of day stands behind the point also before the first day.
    const std::chrono::days days(static_cast<int>(date.serial));
    return static_cast<int>(std::chrono::year_month_day(first_day + days).year());
}

}  // namespace kestrune::settings
