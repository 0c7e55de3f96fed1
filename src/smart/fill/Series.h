#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "automation/Value.h"

namespace kestrune::smart {

// The dates that Excel and OLE count alike: 1 March 1900 to 31 December 9999.
inline constexpr automation::Date first_fill_date{61};
inline constexpr automation::Date last_fill_date{2958465};

// What a series of dates advances by.
struct DateStep {
    std::string_view interval;  // "d", "m", "yyyy"
    double days;                // in which its size is estimated
};
inline constexpr DateStep date_steps[] = {{"d", 1}, {"m", 30}, {"yyyy", 365}};
// The one of an interval; months for any other text.
[[nodiscard]] const DateStep& date_step(std::string_view interval);

// From a start to an end that is not before it, both whole days. Months and years from the last day of a month lead to
// last days of months: 31 January, 28 or 29 February, 31 March. From another day on they lead to that day, or to the
// last one of a month that is too short.
[[nodiscard]] std::vector<automation::Date> date_series(automation::Date start, automation::Date end,
                                                        const DateStep& step);
// From a start up or down to an end, as far as steps of an interval above 0 lead.
[[nodiscard]] std::vector<double> number_series(double start, double end, double interval);

// How many cells the series takes, about; fewer than 1 for none. Halves round to the even neighbour.
[[nodiscard]] double estimated_dates(automation::Date start, automation::Date end, const DateStep& step,
                                     std::int32_t spacing);
// By whole values, as long as the interval is one then.
[[nodiscard]] double estimated_numbers(double start, double end, double interval, std::int32_t spacing);

// The last day of a month, from 1 on, in the year of a date.
[[nodiscard]] automation::Date month_end(std::int32_t month, automation::Date date);

}  // namespace kestrune::smart
