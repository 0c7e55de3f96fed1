#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/Value.h"
#include "host/model/ConditionalFormat.h"
#include "host/model/Sheet.h"

namespace kestrune::host {

// Rules as the object model describes them: XlFormatConditionType, XlFormatConditionOperator, formulas.
std::int32_t condition_type(const ConditionalRule& rule);
std::int32_t condition_operator(const ConditionalRule& rule);  // 0 where the type has none

// A formula of a rule as it is written to Formula1 ("0.5", "=$A1>0", a number): stored without "=", its
// relative references moved from the active cell to the first cell of the rule.
std::string condition_formula(std::string_view member, const automation::Value& formula, Position active,
                              Position first);

// The rule that FormatConditions.Add makes: cell value and expression, blanks and errors. Everything else is
// error 1004. Priority is left at 0.
ConditionalRule condition_rule(std::string_view member, std::int32_t type, const automation::Value& operation,
                               const automation::Value& formula1, const automation::Value& formula2, Position active,
                               Position first);

}  // namespace kestrune::host
