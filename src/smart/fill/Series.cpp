#include "smart/fill/Series.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "settings/Days.h"

namespace kestrune::smart {
namespace {

using automation::Date;
using std::chrono::year_month_day;

Date date_of(std::chrono::sys_days day) { return {static_cast<double>((day - settings::first_day).count())}; }

year_month_day last_day(std::chrono::year_month month) { return year_month_day(month / std::chrono::last); }

// Decimal fractions that are no binary ones ("0.1") must not lose the last step.
constexpr double hair = 1e-9;

}  // namespace

const DateStep& date_step(std::string_view interval) {
    const auto* found = std::ranges::find(date_steps, interval, &DateStep::interval);
    return found == std::end(date_steps) ? date_steps[1] : *found;
}

std::vector<Date> date_series(Date start, Date end, const DateStep& step) {
    std::vector<Date> dates;
    if (step.interval == "d") {
        for (double serial = start.serial; serial <= end.serial; ++serial) dates.push_back({serial});
        return dates;
    }
    const year_month_day first = settings::day_of(start);
    const std::chrono::year_month month = first.year() / first.month();
    const bool month_ends = first == last_day(month);
    const int months = step.interval == "m" ? 1 : 12;
    for (int count = 0;; ++count) {
        const std::chrono::year_month reached = month + std::chrono::months(count * months);
        const year_month_day last = last_day(reached);
        const auto day = month_ends ? last.day() : std::min(first.day(), last.day());
        const Date date = date_of(reached / day);
        if (date.serial > end.serial) return dates;
        dates.push_back(date);
    }
}

std::vector<double> number_series(double start, double end, double interval) {
    std::vector<double> numbers;
    const double direction = end < start ? -1 : 1;
    const auto steps = static_cast<std::int64_t>(std::floor(std::abs(end - start) / interval + hair));
    for (std::int64_t i = 0; i <= steps; ++i) numbers.push_back(start + direction * static_cast<double>(i) * interval);
    return numbers;
}

double estimated_dates(Date start, Date end, const DateStep& step, std::int32_t spacing) {
    return std::nearbyint((end.serial - start.serial) / step.days * spacing + 1);
}

double estimated_numbers(double start, double end, double interval, std::int32_t spacing) {
    if (std::nearbyint(interval) != 0) {
        start = std::nearbyint(start);
        end = std::nearbyint(end);
        interval = std::nearbyint(interval);
    }
    return std::nearbyint(std::abs(end - start) / interval * spacing + 1);
}

Date month_end(std::int32_t month, Date date) {
    return date_of(last_day(settings::day_of(date).year() / std::chrono::month(static_cast<unsigned>(month))));
}

}  // namespace kestrune::smart
