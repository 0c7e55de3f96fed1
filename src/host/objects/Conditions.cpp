#include "host/objects/Conditions.h"

#include <algorithm>

#include "automation/Conversion.h"
#include "formula/A1.h"
#include "formula/FormulaCheck.h"
#include "formula/Shift.h"
#include "host/objects/CellEntry.h"
#include "host/objects/Constants.h"
#include "host/objects/Refusal.h"
#include "number_format/GeneralText.h"

namespace kestrune::host {

using number_format::full_number_text;
namespace {

using automation::Value;

struct Type {
    std::string_view stored;  // ECMA-376 18.18.12
    std::int32_t constant;
    std::string_view formula;  // that the type stands for, # its cell; empty: the caller's own
};
constexpr Type types[] = {
    {"cellIs", xlCellValue, ""},
    {"expression", 2, ""},
    {"colorScale", 3, ""},
    {"dataBar", 4, ""},
    {"top10", 5, ""},
    {"iconSet", 6, ""},
    {"uniqueValues", 8, ""},
    {"duplicateValues", 8, ""},
    {"containsText", 9, ""},
    {"notContainsText", 9, ""},
    {"beginsWith", 9, ""},
    {"endsWith", 9, ""},
    {"containsBlanks", 10, "LEN(TRIM(#))=0"},
    {"timePeriod", 11, ""},
    {"aboveAverage", 12, ""},
    {"notContainsBlanks", 13, "LEN(TRIM(#))>0"},
    {"containsErrors", 16, "ISERROR(#)"},
    {"notContainsErrors", 17, "NOT(ISERROR(#))"},
};

// In the order of XlFormatConditionOperator, from 1.
constexpr std::string_view operators[] = {"between",  "notBetween",         "equal",          "notEqual", "greaterThan",
                                          "lessThan", "greaterThanOrEqual", "lessThanOrEqual"};

}  // namespace

std::int32_t condition_type(const ConditionalRule& rule) {
    const auto* type = std::ranges::find(types, rule.type, &Type::stored);
    return type == std::end(types) ? 2 : type->constant;
}

std::int32_t condition_operator(const ConditionalRule& rule) {
    const auto* found = std::ranges::find(operators, rule.operator_name);
    return found == std::end(operators) ? 0 : static_cast<std::int32_t>(found - std::begin(operators)) + 1;
}

std::string condition_formula(std::string_view member, const Value& formula, Position active, Position first) {
    const auto* text = formula.if_is<std::string>();
    if (!text) return full_number_text(automation::to_double(formula));
    const std::string with_sign = text->starts_with('=') ? *text : "=" + *text;
    if (const auto error = formula::check_formula(with_sign)) {
        refuse(member, "the formula '" + *text + "' is wrong: " + error->message);
    }
    const std::string stored = capitalized(std::string_view(with_sign).substr(1), formula::Notation::a1);
    return formula::shift_formula(stored, first.row - active.row, first.column - active.column,
                                  formula::OffSheet::wrap);
}

ConditionalRule condition_rule(std::string_view member, std::int32_t type, const Value& operation,
                               const Value& formula1, const Value& formula2, Position active, Position first) {
    const auto* kind = std::ranges::find(types, type, &Type::constant);
    const bool makeable = kind != std::end(types) && (type <= 2 || !kind->formula.empty());
    if (!makeable) refuse(member, "a conditional format of this type cannot be made here");
    ConditionalRule rule;
    rule.type = kind->stored;
    if (!kind->formula.empty()) {
        std::string formula(kind->formula);
        formula.replace(formula.find('#'), 1, formula::cell_text(first));
        rule.formulas.push_back(std::move(formula));
        return rule;
    }
    const auto given = [](const Value& argument) { return !argument.is(Value::Kind::Missing); };
    if (!given(formula1)) refuse(member, "the first formula is missing");
    rule.formulas.push_back(condition_formula(member, formula1, active, first));
    if (type != xlCellValue) return rule;
    const std::int32_t wanted = given(operation) ? automation::to_integer(operation) : 0;
    if (wanted < 1 || wanted > static_cast<std::int32_t>(std::size(operators))) {
        refuse(member, "there is no such operator");
    }
    rule.operator_name = operators[wanted - 1];
    if (wanted == xlBetween || wanted == xlNotBetween) {
        if (!given(formula2)) refuse(member, "the second formula is missing");
        rule.formulas.push_back(condition_formula(member, formula2, active, first));
    }
    return rule;
}

}  // namespace kestrune::host
