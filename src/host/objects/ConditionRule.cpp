#include "host/objects/ConditionRule.h"

#include <algorithm>

#include "host/objects/Refusal.h"

namespace kestrune::host {

ConditionalFormat& ConditionRule::format() const {
    for (ConditionalFormat& format : sheet_->conditional_formats()) {
        if (std::ranges::find(format.rules, priority_, &ConditionalRule::priority) != format.rules.end()) return format;
    }
    refuse("FormatCondition", "the conditional format has been deleted");
}

ConditionalRule& ConditionRule::rule() const {
    return *std::ranges::find(format().rules, priority_, &ConditionalRule::priority);
}

DifferentialFormat ConditionRule::differential() const {
    const auto& position = rule().differential;
    return position ? workbook().styles.differentials[*position] : DifferentialFormat{};
}

void ConditionRule::require_changeable(std::string_view member) const {
    if (sheet_->protection().on && !sheet_->protection().format_cells) {
        refuse(member, "the sheet '" + sheet_->name() + "' is protected against formatting");
    }
    if (!rule().source.empty() && (rule().formulas.empty() || format().extension)) {
        refuse(member, "this kind of conditional format cannot be changed");
    }
}

void ConditionRule::change_differential(std::string_view member,
                                        const std::function<void(DifferentialFormat&)>& change) const {
    require_changeable(member);
    DifferentialFormat format = differential();
    change(format);
    format.source.clear();
    rule().differential = workbook().styles.differentials.intern(format);
    changed();
}

void ConditionRule::changed() const {
    rule().source.clear();
    sheet_->conditional_formats_changed = true;
    session_->changed(workbook());
}

void ConditionRule::remove() {
    require_changeable("FormatCondition.Delete");
    ConditionalFormat& holder = format();
    std::erase_if(holder.rules, [&](const ConditionalRule& rule) { return rule.priority == priority_; });
    if (holder.rules.empty()) {
        auto& formats = sheet_->conditional_formats();
        formats.erase(formats.begin() + (&holder - formats.data()));
    }
    sheet_->conditional_formats_changed = true;
    session_->changed(workbook());
}

void ConditionRule::set_priority(std::int32_t priority) {
    require_changeable("FormatCondition.Priority");
    if (priority < 1) refuse("FormatCondition.Priority", "a priority is 1 or more");
    if (priority == priority_) return;
    // The others make room, so that every priority stays unique.
    rule().priority = 0;
    for (ConditionalFormat& other : sheet_->conditional_formats()) {
        for (ConditionalRule& rule : other.rules) {
            if (rule.priority > priority_) --rule.priority;
        }
    }
    for (ConditionalFormat& other : sheet_->conditional_formats()) {
        for (ConditionalRule& rule : other.rules) {
            if (rule.priority >= priority) ++rule.priority;
        }
    }
    priority_ = 0;
    rule().priority = priority;
    priority_ = priority;
    sheet_->conditional_formats_changed = true;
    session_->changed(workbook());
}

}  // namespace kestrune::host
