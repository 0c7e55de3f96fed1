#pragma once

#include <optional>
#include <string_view>

namespace kestrune::host {

// A text that Excel takes for a number or a time when it is entered, and the number format that it
// gives a General cell for it; empty when the cell stays General. Everything en-US.
struct EnteredNumber {
    double value = 0;
    std::string_view format;
};

// "12", "-1,234.50", "(5)", "$1,234", "5%", "1E5", "1 1/2".
std::optional<EnteredNumber> entered_number(std::string_view text);

// "1/31/2024", "2024-01-31", "31-Jan-24", "Jan 31, 2024", "Jan-24", "12:30", "1:30:15 PM", a date and a time.
// A date without a year is this year's.
std::optional<EnteredNumber> entered_date(std::string_view text, bool date1904);

}  // namespace kestrune::host
