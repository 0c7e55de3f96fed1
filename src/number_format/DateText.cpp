#include <fmt/format.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>

#include "number_format/Calendar.h"
#include "number_format/DateNames.h"
#include "number_format/SectionText.h"

namespace kestrune::number_format {
namespace {

constexpr std::int64_t seconds_a_day = 86'400;

// The first UTF-8 character.
std::string_view initial(std::string_view name) {
    std::size_t length = 1;
    while (length < name.size() && (static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U) ++length;
    return name.substr(0, length);
}

// A moment, rounded to what the format shows.
struct Moment {
    std::int64_t days = 0;
    std::int64_t seconds = 0;   // since midnight
    std::int64_t fraction = 0;  // in units of the last decimal shown
};

Moment moment_of(double value, const FormatSection& section) {
    Moment moment;
    if (!section.has_time) {
        moment.days = static_cast<std::int64_t>(std::floor(value));
        return moment;
    }
    constexpr std::array<std::int64_t, 4> units{1, 10, 100, 1000};
    const std::int64_t unit = units[static_cast<std::size_t>(section.second_decimals)];
    const double days = std::floor(value);
    // Nearly a half counts as one: times are binary fractions of a day.
    const auto ticks =
        static_cast<std::int64_t>(std::floor((value - days) * static_cast<double>(seconds_a_day * unit) + 0.5 + 1e-6));
    moment.days = static_cast<std::int64_t>(days) + ticks / (seconds_a_day * unit);
    moment.seconds = ticks / unit % seconds_a_day;
    moment.fraction = ticks % unit;
    return moment;
}

void append_padded(std::string& out, std::int64_t number, int digits) {
    fmt::format_to(std::back_inserter(out), "{:0{}}", number, digits);
}

void append_year(std::string& out, std::int64_t year, int letters) {
    append_padded(out, letters <= 2 ? year % 100 : year, letters <= 2 ? 2 : 4);
}

void append_month(std::string& out, const CalendarDate& date, int letters, const DateNames& names) {
    const auto index = static_cast<std::size_t>(date.month - 1);
    switch (letters) {
        case 1:
        case 2:
            append_padded(out, date.month, letters);
            return;
        case 3:
            out += names.short_months[index];
            return;
        case 5:
            out += initial(names.months[index]);
            return;
        default:
            out += names.months[index];
            return;
    }
}

void append_day(std::string& out, const CalendarDate& date, int letters, const DateNames& names) {
    const auto index = static_cast<std::size_t>(date.weekday);
    switch (letters) {
        case 1:
        case 2:
            append_padded(out, date.day, letters);
            return;
        case 3:
            out += names.short_days[index];
            return;
        default:
            out += names.days[index];
            return;
    }
}

// AM or PM in the letters of the code: "am/pm" gives "am".
std::string_view half_of_day(std::string_view code, bool afternoon) {
    const std::size_t slash = code.find('/');
    return afternoon ? code.substr(slash + 1) : code.substr(0, slash);
}

}  // namespace

bool SectionText::append_date(double value, bool date1904) {
    // Only the 1904 system has dates in front of its first day: it shows them mirrored, with a minus.
    if (value < 0) {
        if (!date1904) return false;
        result_.text += '-';
        value = -value;
    }
    if (value >= 2'958'466) return false;
    const Moment moment = moment_of(value, section_);
    const auto date = date_from_serial(moment.days, date1904);
    if (!date) return false;
    const DateNames& names = date_names(section_.language);
    const std::int64_t hour = moment.seconds / 3600;
    const std::int64_t total = moment.days * seconds_a_day + moment.seconds;
    std::string& out = result_.text;
    for (const Item& item : section_.items) {
        const int width = std::min(item.count, 2);
        switch (item.part) {
            case Part::year:
                append_year(out, date->year, item.count);
                break;
            case Part::buddhist_year:
                append_year(out, date->year + 543, item.count);
                break;
            case Part::month:
                append_month(out, *date, item.count, names);
                break;
            case Part::day:
                append_day(out, *date, item.count, names);
                break;
            case Part::hour:
                append_padded(out, section_.twelve_hours ? (hour + 11) % 12 + 1 : hour, width);
                break;
            case Part::minute:
                append_padded(out, moment.seconds / 60 % 60, width);
                break;
            case Part::second:
                append_padded(out, moment.seconds % 60, width);
                break;
            case Part::second_fraction: {
                std::string digits;
                append_padded(digits, moment.fraction, section_.second_decimals);
                out += '.';
                out += digits.substr(0, static_cast<std::size_t>(item.count));
                break;
            }
            case Part::am_pm:
                out += half_of_day(item.text, hour >= 12);
                break;
            case Part::elapsed_hours:
                append_padded(out, total / 3600, item.count);
                break;
            case Part::elapsed_minutes:
                append_padded(out, total / 60, item.count);
                break;
            case Part::elapsed_seconds:
                append_padded(out, total, item.count);
                break;
            default:
                append_common(item);
                break;
        }
    }
    return true;
}

}  // namespace kestrune::number_format
