#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "formula/Reference.h"

namespace kestrune::formula {

// Why a formula cannot be entered, and the byte of its text where the trouble shows.
struct FormulaError {
    std::size_t offset = 0;
    std::string message;
};

// Whether Excel lets a person enter the formula, with or without its leading "=". Nothing when it does. Looks at the
// form, and at Excel's limits (8,192 characters, 255 characters a text, 255 arguments, 64 levels of functions); whether
// a function or a name exists is found out when the formula is calculated.
[[nodiscard]] std::optional<FormulaError> check_formula(std::string_view formula, Notation notation = Notation::a1);

}  // namespace kestrune::formula
