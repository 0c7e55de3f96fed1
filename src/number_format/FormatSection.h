#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::number_format {

enum class Part : std::uint8_t {
    literal,  // text as it stands; of a number format also what stands for "_x", one space
    fill,     // *x: x fills the width of the column here
    // numbers
    integer_digit,
    decimal_point,
    fraction_digit,
    exponent_mark,
    exponent_digit,
    numerator_digit,
    slash,
    denominator_digit,
    denominator,  // a fixed one, in `count`
    percent,
    general,
    text,  // @
    // dates and times; `count` is the number of letters
    year,
    buddhist_year,
    month,
    day,
    hour,
    minute,
    second,
    second_fraction,  // count digits
    am_pm,
    elapsed_hours,
    elapsed_minutes,
    elapsed_seconds,
    nothing,  // an era, which the Gregorian calendar does not show
    // only while a section is being read
    raw_digit,
    raw_comma,
    raw_point,
    raw_slash,
};

struct Item {
    Part part = Part::literal;
    char sign = '\0';  // the placeholder 0, # or ?; the sign of an exponent mark
    int count = 0;
    std::string text;  // of a literal, a fill or an AM/PM
};

struct Condition {
    enum class Operator : std::uint8_t { less, less_or_equal, equal, not_equal, greater_or_equal, greater };

    Operator op = Operator::equal;
    double limit = 0;

    [[nodiscard]] bool holds(double value) const;
    // Whether no number from zero on can match: such a section shows numbers without their minus.
    [[nodiscard]] bool only_negative() const;
    // Whether every number above zero matches, which leaves the next section the others.
    [[nodiscard]] bool all_positive() const;
};

enum class SectionKind : std::uint8_t { literal, general, number, scientific, fraction, date, text };

// One of the up to four parts of a format code, taken apart.
struct FormatSection {
    SectionKind kind = SectionKind::literal;
    std::vector<Item> items;
    std::optional<Condition> condition;
    std::optional<int> colour;  // 1 to 56, an entry of the workbook's palette
    std::uint32_t language = 0x409;
    bool currency = false;
    bool grouped = false;  // thousands separators
    bool twelve_hours = false;
    bool has_date = false;  // years, months, days
    bool has_time = false;
    int integer_digits = 0;
    int decimals = 0;
    int exponent_digits = 0;
    int power = 0;  // of ten, by which percent signs and scaling commas change the number
    int second_decimals = 0;
};

}  // namespace kestrune::number_format
