#pragma once

#include <fmt/format.h>

#include <chrono>
#include <optional>
#include <string>

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

constexpr std::chrono::year_month_day day_of(automation::Date date) {
    // The time of day stands behind the point also before the first day.
    return first_day + std::chrono::days(static_cast<int>(date.serial));
}

constexpr int year_of(automation::Date date) { return static_cast<int>(day_of(date).year()); }

// The day alone, "2026-01-31".
inline std::string day_text(automation::Date date) {
    const std::chrono::year_month_day day = day_of(date);
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(day.year()), static_cast<unsigned>(day.month()),
                       static_cast<unsigned>(day.day()));
}

}  // namespace kestrune::settings
