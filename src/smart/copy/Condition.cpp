#include "smart/copy/Condition.h"

#include <algorithm>

#include "automation/Conversion.h"
#include "automation/Text.h"
#include "smart/copy/TextOrder.h"

namespace kestrune::smart {
namespace {

using automation::same_text;

// Further kinds of contents.
enum : std::int32_t { logical = 3, error = 4, first_date = 5, last_date = 7, number = 8 };

bool or_equal(std::string_view comparison) { return comparison == "EQUAL" || comparison.ends_with("OR EQUAL"); }

// order: below, at or above 0, of the cell against the value.
bool holds(std::string_view comparison, int order) {
    if (comparison == "EQUAL") return order == 0;
    if (comparison == "NOT EQUAL") return order != 0;
    if (comparison == "GREATER THAN") return order > 0;
    if (comparison == "LESS THAN") return order < 0;
    if (comparison == "GREATER THAN OR EQUAL") return order >= 0;
    return comparison == "LESS THAN OR EQUAL" && order <= 0;
}

int order_of(double cell, double value) { return cell < value ? -1 : cell > value ? 1 : 0; }

}  // namespace

Condition read_condition(const core::diBRVBLib& library, std::string_view comparison, std::string_view value,
                         bool text_only) {
    Condition condition{
        .comparison = {}, .value = std::string(value), .text_only = text_only, .number = {}, .date = {}};
    const auto* found = std::ranges::find(condition_operators, comparison);
    if (found != condition_operators.end()) condition.comparison = *found;
    if (text_only) return condition;
    condition.number = library.typed_number(value);
    if (!condition.number) condition.date = library.typed_date(value);
    return condition;
}

bool EvaluateCondition(const Condition& condition, const CellContent& cell) {
    if (condition.comparison.empty()) return false;
    if (!condition.text_only) {
        const std::string_view value = automation::trimmed(condition.value);
        std::int32_t meant = 0;
        if (value.empty()) meant = content_is_empty;
        if (same_text(value, "TRUE") || same_text(value, "FALSE")) meant = logical;
        if (same_text(value, "ERR") || same_text(value, "ERROR")) meant = error;
        if (meant != 0) return (cell.kind == meant) == or_equal(condition.comparison);
        if (condition.number) {
            return cell.kind == number &&
                   holds(condition.comparison, order_of(automation::to_double(cell.value), *condition.number));
        }
        if (condition.date) {
            return cell.kind >= first_date && cell.kind <= last_date &&
                   holds(condition.comparison, order_of(automation::to_double(cell.value), condition.date->serial));
        }
    }
    return cell.kind == content_is_text &&
           holds(condition.comparison, compare_texts(automation::to_text(cell.value), condition.value));
}

}  // namespace kestrune::smart
