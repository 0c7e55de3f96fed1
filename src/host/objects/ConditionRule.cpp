#include "host/objects/ConditionRule.h"

#include <algorithm>

#include "host/model/ConditionPriorities.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {

ConditionRule::ConditionRule(HostSession& session, Sheet& sheet, std::int32_t priority)
    : session_(&session), sheet_(&sheet), handle_(0) {
    ConditionalRule* wanted = nullptr;
    for (ConditionalFormat& format : sheet.conditional_formats()) {
        for (ConditionalRule& rule : format.rules) {
            handle_ = std::max(handle_, rule.handle);
            if (rule.priority == priority) wanted = &rule;
        }
    }
    ++handle_;
    if (wanted && wanted->handle == 0) wanted->handle = handle_;
    if (wanted) handle_ = wanted->handle;
}

ConditionalFormat& ConditionRule::format() const {
    for (ConditionalFormat& format : sheet_->conditional_formats()) {
        if (std::ranges::find(format.rules, handle_, &ConditionalRule::handle) != format.rules.end()) return format;
    }
    refuse("FormatCondition", "the conditional format has been deleted");
}

ConditionalRule& ConditionRule::rule() const {
    return *std::ranges::find(format().rules, handle_, &ConditionalRule::handle);
}

DifferentialFormat ConditionRule::differential() const {
    const auto& position = rule().differential;
    const auto& all = workbook().styles.differentials;
    // Broken files name formats beyond the end of the list.
    return position && *position < all.size() ? all[*position] : DifferentialFormat{};
}

Position ConditionRule::viewpoint() const {
    return session_->active_sheet() == sheet_ ? sheet_->view().active_cell : format().anchor();
}

void ConditionRule::require_allowed(std::string_view member) const {
    if (sheet_->protection().on && !sheet_->protection().format_cells) {
        refuse(member, "the sheet '" + sheet_->name() + "' is protected against formatting");
    }
}

void ConditionRule::require_changeable(std::string_view member) const {
    require_allowed(member);
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
    moved();
}

void ConditionRule::moved() const {
    sheet_->conditional_formats_changed = true;
    session_->changed(workbook());
}

void ConditionRule::remove() {
    require_allowed("FormatCondition.Delete");
    ConditionalFormat& holder = format();
    const std::int32_t priority = rule().priority;
    std::erase_if(holder.rules, [&](const ConditionalRule& rule) { return rule.handle == handle_; });
    if (holder.rules.empty()) {
        auto& formats = sheet_->conditional_formats();
        formats.erase(formats.begin() + (&holder - formats.data()));
    }
    close_priority_gap(sheet_->conditional_formats(), priority);
    moved();
}

void ConditionRule::set_priority(std::int32_t priority) {
    require_allowed("FormatCondition.Priority");
    if (priority < 1) refuse("FormatCondition.Priority", "a priority is 1 or more");
    ConditionalRule& own = rule();
    if (priority == own.priority) return;
    const auto with = [&](std::int32_t wanted) -> ConditionalRule* {
        for (ConditionalFormat& format : sheet_->conditional_formats()) {
            const auto found = std::ranges::find(format.rules, wanted, &ConditionalRule::priority);
            if (found != format.rules.end()) return &*found;
        }
        return nullptr;
    };
    // The others make room as far as they are in the way: into the gap that the rule leaves, or a nearer one.
    std::int32_t gap = own.priority;
    const std::int32_t step = priority < gap ? -1 : 1;
    own.priority = 0;
    std::int32_t free = priority;
    while (free != gap && with(free)) free -= step;
    gap = free;
    for (; gap != priority; gap += step) {
        if (ConditionalRule* other = with(gap + step)) other->priority = gap;
    }
    own.priority = priority;
    moved();
}

}  // namespace kestrune::host
