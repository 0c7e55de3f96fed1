#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrune::brvblib {

// What became of a number format.
enum class FormatChange : std::int32_t {
    Changed = 0,
    AtLimit = 1,     // it has what is adjusted, and no further step: no decimals left, no thousands left
    NotNumeric = 2,  // no section has it: texts, dates, fractions
    TooLong = 3,     // the format would be longer than Excel takes (255 characters)
};

struct AdjustedFormat {
    FormatChange change = FormatChange::NotNumeric;
    std::string format;  // the given one unless Changed
};

// The format with one decimal place more (step 1) or less (-1) in every section that shows numbers. Sections of texts,
// dates and fractions stay as they are. "General" takes its decimals from how the number shows ("0.25", "1.2E+10"; a
// text without digits is a whole number).
[[nodiscard]] AdjustedFormat with_decimals(std::string_view format, std::int32_t step, std::string_view general_shows);

// The format showing numbers a thousand times smaller (step 1: one more comma behind the digits, up to trillions) or
// larger (-1: one comma less). Percentages and scientific sections stay as they are, as those above do.
[[nodiscard]] AdjustedFormat with_scale(std::string_view format, std::int32_t step);

}  // namespace kestrune::brvblib
