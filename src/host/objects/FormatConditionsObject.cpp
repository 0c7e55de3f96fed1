#include "host/objects/FormatConditionsObject.h"

#include <algorithm>

#include "host/objects/Conditions.h"
#include "host/objects/FormatConditionObject.h"
#include "host/objects/Items.h"
#include "host/objects/RangeObject.h"

namespace kestrune::host {

ObjectRef FormatConditionsObject::parent() const { return std::make_shared<RangeObject>(cells_); }

std::vector<std::int32_t> FormatConditionsObject::priorities() const {
    std::vector<std::int32_t> found;
    for (const ConditionalFormat& format : cells_.sheet().conditional_formats()) {
        const bool holds = std::ranges::any_of(format.areas, [&](const Area& area) {
            return std::ranges::any_of(cells_.areas(),
                                       [&](const Area& own) { return own.intersection(area).has_value(); });
        });
        if (!holds) continue;
        for (const ConditionalRule& rule : format.rules) found.push_back(rule.priority);
    }
    std::ranges::sort(found);
    return found;
}

ObjectRef FormatConditionsObject::item(std::int32_t index) const {
    const auto all = priorities();
    if (index < 1 || index > static_cast<std::int32_t>(all.size())) {
        refuse_index("FormatConditions.Item", "there is no such conditional format");
    }
    return std::make_shared<FormatConditionObject>(
        ConditionRule(session(), cells_.sheet(), all[static_cast<std::size_t>(index - 1)]));
}

ObjectRef FormatConditionsObject::add(std::int32_t type, const Value& operation, const Value& formula1,
                                      const Value& formula2) {
    constexpr std::string_view member = "FormatConditions.Add";
    cells_.require_format_allowed(member);
    Sheet& sheet = cells_.sheet();
    ConditionalFormat fresh;
    fresh.areas = cells_.areas();
    const Position first = fresh.anchor();
    const Position active = session().active_sheet() == &sheet ? sheet.view().active_cell : first;
    ConditionalRule rule = condition_rule(member, type, operation, formula1, formula2, active, first);
    auto& formats = sheet.conditional_formats();
    for (const ConditionalFormat& format : formats) {
        for (const ConditionalRule& other : format.rules) rule.priority = std::max(rule.priority, other.priority);
    }
    const std::int32_t priority = ++rule.priority;
    const auto same_cells = [&](const ConditionalFormat& format) {
        return !format.extension && !format.pivot && format.areas == cells_.areas();
    };
    auto holder = std::ranges::find_if(formats, same_cells);
    if (holder == formats.end()) {
        holder = formats.insert(formats.end(), std::move(fresh));
    }
    holder->rules.push_back(std::move(rule));
    sheet.conditional_formats_changed = true;
    cells_.changed();
    return std::make_shared<FormatConditionObject>(ConditionRule(session(), sheet, priority));
}

void FormatConditionsObject::remove() {
    cells_.require_format_allowed("FormatConditions.Delete");
    if (priorities().empty()) return;
    for (const Area& area : cells_.areas()) cells_.sheet().delete_conditional_formats(area);
    cells_.changed();
}

ObjectRef FormatConditionsObject::new_enum() const { return items_of(*this); }

const MemberTable& FormatConditionsObject::members() {
    using F = FormatConditionsObject;
    static constexpr auto rows = automation::member_rows(
        enumeration<&F::new_enum>(), method<&F::item>("Item", 0, "Index"), read_only<&F::application>("Application", 1),
        read_only<&F::parent>("Parent", 2), read_only<&F::count>("Count", 3),
        method<&F::add>("Add", 4, "Type, [Operator], [Formula1], [Formula2]"), method<&F::remove>("Delete", 5));
    static constexpr MemberTable table("FormatConditions", rows);
    return table;
}

}  // namespace kestrune::host
