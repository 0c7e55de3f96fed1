#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "excel/Range.h"

namespace kestrune::brxllib {

// What a cell holds, under the numbers that callers know.
enum class ContentKind : std::int32_t {
    Empty = 1,
    Text = 2,
    Logical = 3,
    Error = 4,
    Date = 5,         // a day without a time
    Time = 6,         // a time of day, or a span of less than a day
    DateAndTime = 7,  // both
    Number = 8,
};

constexpr bool is_date_or_time(ContentKind kind) {
    return kind >= ContentKind::Date && kind <= ContentKind::DateAndTime;
}

// The kind of a value as Range.Value gives it.
[[nodiscard]] ContentKind content_kind(const automation::Value& value);

// Whether a number format shows times and no date ("h:mm", "[h]:mm:ss"), in the section for positive numbers. Excel
// gives the value of such cells as a plain number.
[[nodiscard]] bool is_time_format(std::string_view code);

// The kinds of a rectangle's cells, row by row. One call to Excel for the values, and where numbers may be times one
// for each part of the rectangle that has one number format.
[[nodiscard]] std::vector<ContentKind> content_kinds(const excel::Range& range);

}  // namespace kestrune::brxllib
