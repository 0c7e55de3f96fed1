#include "host/objects/FormatConditionObject.h"

#include <algorithm>

#include "formula/Shift.h"
#include "host/objects/ConditionBordersObject.h"
#include "host/objects/ConditionFontObject.h"
#include "host/objects/ConditionInteriorObject.h"
#include "host/objects/Conditions.h"
#include "host/objects/RangeObject.h"
#include "number_format/NumberFormat.h"

namespace kestrune::host {

using number_format::is_valid_format;

ObjectRef FormatConditionObject::applies_to() const {
    return std::make_shared<RangeObject>(CellRange(session(), rule_.sheet(), rule_.format().areas));
}

void FormatConditionObject::modify_applies_to_range(const ObjectRef& range) {
    constexpr std::string_view member = "FormatCondition.ModifyAppliesToRange";
    const auto wanted = range_argument(member, range);
    if (&wanted->cell_range().sheet() != &rule_.sheet()) refuse(member, "the range is on another sheet");
    rule_.require_allowed(member);
    ConditionalFormat& format = rule_.format();
    const Position before = format.anchor();
    auto& formats = rule_.sheet().conditional_formats();
    auto holder = formats.begin() + (&format - formats.data());
    if (format.rules.size() > 1) {
        if (format.extension) refuse(member, "a part of this conditional format cannot be changed");
        ConditionalFormat fresh;
        fresh.pivot = format.pivot;
        fresh.rules.push_back(rule_.rule());
        std::erase_if(format.rules,
                      [&, own = priority()](const ConditionalRule& rule) { return rule.priority == own; });
        holder = formats.insert(formats.end(), std::move(fresh));
    }
    // What the rule says of its cells, it says of the others just so; all that nobody here reads of it stays.
    holder->areas = wanted->cell_range().areas();
    const Position after = holder->anchor();
    for (std::string& text : holder->rules.front().formulas) {
        text =
            formula::shift_formula(text, after.row - before.row, after.column - before.column, formula::OffSheet::wrap);
    }
    rule_.moved();
}

std::int32_t FormatConditionObject::type() const { return condition_type(rule_.rule()); }

std::int32_t FormatConditionObject::operation() const {
    const std::int32_t operation = condition_operator(rule_.rule());
    if (operation == 0) refuse("FormatCondition.Operator", "this conditional format has no operator");
    return operation;
}

std::string FormatConditionObject::formula(std::size_t position, std::string_view member) const {
    const auto& formulas = rule_.rule().formulas;
    if (position >= formulas.size()) refuse(member, "this conditional format has no such formula");
    return "=" + formulas[position];
}

std::string FormatConditionObject::formula1() const { return formula(0, "FormatCondition.Formula1"); }
std::string FormatConditionObject::formula2() const { return formula(1, "FormatCondition.Formula2"); }

void FormatConditionObject::modify(std::int32_t type, const Value& operation, const Value& formula1,
                                   const Value& formula2) {
    constexpr std::string_view member = "FormatCondition.Modify";
    rule_.require_changeable(member);
    ConditionalRule changed =
        condition_rule(member, type, operation, formula1, formula2, rule_.viewpoint(), rule_.format().anchor());
    ConditionalRule& rule = rule_.rule();
    changed.priority = rule.priority;
    changed.differential = rule.differential;
    changed.stop_if_true = rule.stop_if_true;
    rule = std::move(changed);
    rule_.changed();
}

ObjectRef FormatConditionObject::font() const { return std::make_shared<ConditionFontObject>(rule_); }
ObjectRef FormatConditionObject::interior() const { return std::make_shared<ConditionInteriorObject>(rule_); }

ObjectRef FormatConditionObject::borders() const { return std::make_shared<ConditionBordersObject>(rule_); }

Value FormatConditionObject::number_format() const {
    const auto code = rule_.differential().number_format;
    return code ? Value(*code) : Value(Null{});
}

void FormatConditionObject::set_number_format(const std::string& code) {
    constexpr std::string_view member = "FormatCondition.NumberFormat";
    if (!is_valid_format(code)) refuse(member, "'" + code + "' is no number format");
    rule_.change_differential(member, [&](DifferentialFormat& format) { format.number_format = code; });
}

void FormatConditionObject::set_last_priority() {
    std::int32_t rules = 0;
    for (const ConditionalFormat& format : rule_.sheet().conditional_formats()) {
        rules += static_cast<std::int32_t>(format.rules.size());
    }
    rule_.set_priority(std::max(rules, priority()));
}

void FormatConditionObject::set_stop_if_true(bool on) {
    rule_.require_changeable("FormatCondition.StopIfTrue");
    rule_.rule().stop_if_true = on;
    rule_.changed();
}

const MemberTable& FormatConditionObject::members() {
    using F = FormatConditionObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&F::application>("Application", 1), read_only<&F::parent>("Parent", 2),
        read_only<&F::applies_to>("AppliesTo", 3),
        method<&F::modify_applies_to_range>("ModifyAppliesToRange", 4, "Range"), read_only<&F::type>("Type", 5),
        read_only<&F::operation>("Operator", 6), read_only<&F::formula1>("Formula1", 7),
        read_only<&F::formula2>("Formula2", 8),
        method<&F::modify>("Modify", 9, "Type, [Operator], [Formula1], [Formula2]"), read_only<&F::font>("Font", 10),
        read_only<&F::interior>("Interior", 11), property<&F::number_format, &F::set_number_format>("NumberFormat", 12),
        property<&F::priority, &F::set_priority>("Priority", 13),
        method<&F::set_first_priority>("SetFirstPriority", 14), method<&F::set_last_priority>("SetLastPriority", 15),
        property<&F::stop_if_true, &F::set_stop_if_true>("StopIfTrue", 16), method<&F::remove>("Delete", 17),
        read_only<&F::borders>("Borders", 18));
    static constexpr MemberTable table("FormatCondition", rows);
    return table;
}

}  // namespace kestrune::host
