#include "brvblib/Calendar.h"

#include <fmt/format.h>

#include <array>
#include <cmath>
#include <ctime>

#include "automation/AutomationError.h"
#include "automation/Text.h"

namespace kestrune::brvblib {
namespace {

using automation::Date;
using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days day_zero = year{1899} / 12 / 30;

[[noreturn]] void refuse(std::string_view what) {
    throw automation::AutomationError(automation::hresult::type_mismatch, "iDate", what);
}

struct Interval {
    std::string_view name;
    std::int64_t size;
    bool in_months;  // else in seconds
};

constexpr std::int64_t day_in_seconds = 86'400;
constexpr auto intervals = std::to_array<Interval>({
    {"yyyy", 12, true},
    {"q", 3, true},
    {"m", 1, true},
    {"y", day_in_seconds, false},
    {"d", day_in_seconds, false},
    {"w", day_in_seconds, false},
    {"ww", 7 * day_in_seconds, false},
    {"h", 3600, false},
    {"n", 60, false},
    {"s", 1, false},
});

Moment months_later(const Moment& moment, std::int64_t count) {
    const year_month_day day(moment.day);
    const auto month = year_month_day(day.year() / day.month() / 1) + months(static_cast<int>(count));
    const auto last = (month.year() / month.month() / std::chrono::last).day();
    return {sys_days(month.year() / month.month() / std::min(day.day(), last)), moment.milliseconds};
}

Moment seconds_later(const Moment& moment, std::int64_t seconds) {
    const std::int64_t time = moment.milliseconds + seconds * 1000;
    std::int64_t whole = time / milliseconds_a_day;
    if (time % milliseconds_a_day < 0) --whole;
    return {moment.day + days(static_cast<int>(whole)), time - whole * milliseconds_a_day};
}

}  // namespace

Moment moment_of(Date date) {
    if (!(date.serial >= -657434.0 && date.serial < 2958466.0)) refuse(fmt::format("{} is no date", date.serial));
    double whole = std::trunc(date.serial);
    auto time = static_cast<std::int64_t>(std::llround(std::abs(date.serial - whole) * milliseconds_a_day));
    if (time == milliseconds_a_day) {
        time = 0;
        whole += 1;
    }
    return {day_zero + days(static_cast<int>(whole)), time};
}

Date date_of(const Moment& moment) {
    const auto count = static_cast<double>((moment.day - day_zero).count());
    const double share = static_cast<double>(moment.milliseconds) / milliseconds_a_day;
    return {count < 0 ? count - share : count + share};
}

std::string date_text(Date date) {
    const Moment moment = moment_of(date);
    const year_month_day day(moment.day);
    std::string text;
    if (moment.day != day_zero) {
        text = fmt::format("{}/{}/{}", static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
                           static_cast<int>(day.year()));
    }
    const std::int64_t seconds = moment.milliseconds / 1000;
    if (seconds == 0 && !text.empty()) return text;
    const std::int64_t hour = seconds / 3600;
    return fmt::format("{}{}{}:{:02}:{:02} {}", text, text.empty() ? "" : " ", hour % 12 == 0 ? 12 : hour % 12,
                       seconds / 60 % 60, seconds % 60, hour < 12 ? "AM" : "PM");
}

Date date_later(Date date, const std::string& interval, double count) {
    // Beyond this every interval leaves the calendar.
    if (!(std::abs(count) < 1e12)) refuse(fmt::format("{} is too far away", count));
    for (const Interval& row : intervals) {
        if (!automation::same_text(row.name, interval)) continue;
        // Visual Basic takes the whole part of the count.
        const std::int64_t size = static_cast<std::int64_t>(std::trunc(count)) * row.size;
        const Moment moment = moment_of(date);
        const std::int64_t whole_days = row.in_months ? size * 30 : size / day_in_seconds;
        if (std::abs(whole_days) > 4'000'000) refuse(fmt::format("{} is too far away", count));
        const Date later = date_of(row.in_months ? months_later(moment, size) : seconds_later(moment, size));
        static_cast<void>(moment_of(later));
        return later;
    }
    refuse(fmt::format("'{}' is no interval", interval));
}

Date local_now() {
    const std::time_t now = std::time(nullptr);
    // The one thread of Excel's user interface asks, so the shared result is nobody else's.
    const std::tm* local = std::localtime(&now);  // NOLINT(concurrency-mt-unsafe)
    if (!local) return {};
    const sys_days day = year{local->tm_year + 1900} / (local->tm_mon + 1) / local->tm_mday;
    return date_of({day, ((local->tm_hour * 60LL + local->tm_min) * 60 + std::min(local->tm_sec, 59)) * 1000});
}

}  // namespace kestrune::brvblib
