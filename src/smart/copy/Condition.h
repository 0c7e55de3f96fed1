#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "automation/Value.h"
#include "core/bridges/diBRVBLib.h"

namespace kestrune::smart {

// The operators, in the order of the dialog's list.
inline constexpr std::array<std::string_view, 6> condition_operators{
    "EQUAL", "NOT EQUAL", "GREATER THAN", "LESS THAN", "GREATER THAN OR EQUAL", "LESS THAN OR EQUAL"};

// The spreadsheet library's kinds of contents.
inline constexpr std::int32_t content_is_empty = 1;
inline constexpr std::int32_t content_is_text = 2;

// What a cell holds: the spreadsheet library's kind of its content, and its value.
struct CellContent {
    std::int32_t kind = content_is_empty;
    automation::Value value;
};

// A condition on cells, read once for all of them.
struct Condition {
    std::string_view comparison;   // one of condition_operators; empty for any other word, which nothing satisfies
    std::string value;             // as the person typed it
    bool text_only = false;        // texts are compared with the value, whatever it looks like
    std::optional<double> number;  // the value as a number
    std::optional<automation::Date> date;  // else as a date
};

[[nodiscard]] Condition read_condition(const core::diBRVBLib& library, std::string_view comparison,
                                       std::string_view value, bool text_only);

// Whether a cell satisfies a condition, by what its value means:
// - nothing but blanks: the empty cells, for EQUAL and the operators "or equal"; else those that are not;
// - TRUE or FALSE, and ERR or ERROR: in the same manner all cells with a logical value, or an error;
// - a number: the numbers for which the comparison holds; a date: the dates and times;
// - anything else: the texts, the case of letters apart.
[[nodiscard]] bool EvaluateCondition(const Condition& condition, const CellContent& cell);

}  // namespace kestrune::smart
