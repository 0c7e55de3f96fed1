#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <tuple>
#include <utility>

#include "number_format/SectionText.h"

namespace kestrune::number_format {
namespace {

// The last convergent of the continued fraction whose denominator is small enough. Excel stops there, too, although a
// fraction between two convergents may come closer: 0.789 is 15/19 with two digits, not 71/90.
std::pair<std::int64_t, std::int64_t> nearest_fraction(double value, std::int64_t largest) {
    std::int64_t numerator = 1;
    std::int64_t denominator = 0;
    std::int64_t previous_numerator = 0;
    std::int64_t previous_denominator = 1;
    double rest = value;
    for (;;) {
        const double whole = std::floor(rest);
        if (whole > 1e9) break;
        const auto term = static_cast<std::int64_t>(whole);
        const std::int64_t next_denominator = term * denominator + previous_denominator;
        if (next_denominator > largest) break;
        previous_numerator = std::exchange(numerator, term * numerator + previous_numerator);
        previous_denominator = std::exchange(denominator, next_denominator);
        rest -= whole;
        if (rest < 5e-8) break;
        rest = 1 / rest;
    }
    return {numerator, denominator};
}

int count(const FormatSection& section, Part part) {
    return static_cast<int>(std::ranges::count_if(section.items, [&](const Item& item) { return item.part == part; }));
}

}  // namespace

void SectionText::append_fraction(double size) {
    const double whole_part = section_.integer_digits > 0 ? std::floor(size) : 0;
    const int numerator_digits = count(section_, Part::numerator_digit);
    const int denominator_digits = count(section_, Part::denominator_digit);
    const auto fixed = std::ranges::find_if(section_.items, [](const Item& i) { return i.part == Part::denominator; });

    const double rest = size - whole_part;
    double whole = whole_part;
    std::int64_t numerator = 0;
    std::int64_t denominator = 1;
    if (fixed != section_.items.end()) denominator = fixed->count;
    // Digits past 15 are gone anyway: the numerator of a huge number is written from its decimal digits.
    const double over = std::floor(rest * static_cast<double>(denominator) + 0.5);
    const bool huge = over >= 1e9;
    if (huge) {
        numerator = 1;
    } else if (fixed != section_.items.end()) {
        numerator = static_cast<std::int64_t>(over);
    } else {
        const auto largest = static_cast<std::int64_t>(std::pow(10.0, std::min(denominator_digits, 7))) - 1;
        std::tie(numerator, denominator) = nearest_fraction(rest, largest);
    }
    if (section_.integer_digits > 0 && numerator >= denominator) {
        const std::int64_t carried = numerator / denominator;
        whole += static_cast<double>(carried);
        numerator %= denominator;
    }
    Decimal whole_number(whole);
    std::string whole_digits = whole_number.integer_digits();
    const std::string upper = huge ? Decimal(over).integer_digits() : fmt::format("{}", numerator);
    const std::string lower = fmt::format("{}", denominator);
    // Without anything behind the whole number, the place of the fraction stays blank; a lone zero is shown.
    const bool blank =
        numerator == 0 && section_.integer_digits > 0 && std::ranges::none_of(section_.items, [](const Item& item) {
            return item.part == Part::numerator_digit && item.sign == '0';
        });
    if (blank && whole_digits.empty()) whole_digits = "0";

    DigitRow whole_row(whole_digits, section_.integer_digits, section_.grouped);
    DigitRow upper_row(upper, numerator_digits, false);
    int lower_at = 0;
    int whole_left = section_.integer_digits;
    const auto last_of_fraction = std::find_if(section_.items.rbegin(), section_.items.rend(), [](const Item& item) {
        return item.part == Part::denominator_digit || item.part == Part::denominator;
    });
    const auto* const end_of_fraction = last_of_fraction == section_.items.rend() ? nullptr : &*last_of_fraction;
    bool in_fraction = false;
    for (const Item& item : section_.items) {
        const std::size_t start = result_.text.size();
        switch (item.part) {
            case Part::integer_digit:
                whole_row.append(result_.text, item.sign);
                if (--whole_left == 0) in_fraction = true;
                continue;
            case Part::numerator_digit:
                if (blank)
                    result_.text += ' ';
                else
                    upper_row.append(result_.text, item.sign);
                break;
            case Part::slash:
                result_.text += '/';
                break;
            case Part::denominator:
                result_.text += lower;
                break;
            case Part::denominator_digit: {
                // Left-aligned, so that slashes stand below each other.
                const bool last = ++lower_at == denominator_digits;
                const auto at = static_cast<std::size_t>(lower_at - 1);
                if (at < lower.size())
                    result_.text += last ? lower.substr(at) : std::string(1, lower[at]);
                else if (item.sign != '#')
                    result_.text += ' ';
                break;
            }
            default:
                append_common(item);
                break;
        }
        if (blank && in_fraction) {
            // Everything from the whole number on leaves room as wide as itself.
            const std::size_t added = result_.text.size() - start;
            result_.text.replace(start, added, added, ' ');
        }
        if (&item == end_of_fraction) in_fraction = false;
    }
}

}  // namespace kestrune::number_format
