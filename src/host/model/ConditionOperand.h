#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host/model/Sheet.h"

namespace kestrune::host {

// Conditions as far as they can be worked out without a calculation engine; nothing where they cannot.

// A constant (5, -2.5%, "x", TRUE, #N/A) or a single cell, relative references moved from anchor to at.
[[nodiscard]] std::optional<CellContent> operand_value(Sheet& sheet, std::string_view text, Position anchor,
                                                       Position at);
// One operand that is true or not, or two with =, <>, <, <=, > or >= between them.
[[nodiscard]] std::optional<bool> condition_value(Sheet& sheet, std::string_view text, Position anchor, Position at);

// A cell's value; nothing for a formula that waits for its calculation.
[[nodiscard]] std::optional<CellContent> known_content(Sheet& sheet, Position at);

// As Excel orders values: numbers before texts before truth values, texts whatever their case, a blank as the other's
// zero, empty text or FALSE. Negative, 0 or positive; nothing when one is an error.
[[nodiscard]] std::optional<std::int32_t> compared(const CellContent& left, const CellContent& right);

// A value as text functions see it.
[[nodiscard]] std::string text_of(const CellContent& content);

}  // namespace kestrune::host
