#include "styles/commands/StyleCycleCommands.h"

#include <optional>

#include "automation/ResumeNext.h"
#include "core/bridges/Selection.h"
#include "excel/Constants.h"
#include "settings/cUserSettings.h"

namespace kestrune::styles {
namespace {

using automation::ResumeNext;
using automation::Value;
using settings::StyleCycle;

constexpr std::int32_t red = 0x0000FF;

struct Condition {
    std::int32_t operation;
    Value formula1;
    Value formula2 = automation::Missing{};
};

// Shows every value but 0 and 1 in red.
void add_binary_conditions(const core::SharedState& shared, const excel::FormatConditions& conditions) {
    const Condition flags[] = {
        {excel::xlGreater, "1"},
        {excel::xlBetween, "0.00001", ".99999"},
        {excel::xlLess, "0"},
    };
    const ResumeNext attempt(shared.trace);
    for (const Condition& flag : flags) {
        attempt([&] {
            const excel::FormatCondition added =
                conditions.Add(excel::xlCellValue, flag.operation, flag.formula1, flag.formula2);
            added.Font().Color(red);
        });
    }
}

bool pauses_redrawing(StyleCycle cycle) {
    return cycle == StyleCycle::BorderStyleToggle || cycle >= StyleCycle::MyStyleToggle1;
}

}  // namespace

void apply_style_cycle(core::SharedState& shared, StyleCycle cycle, std::int32_t position) {
    const ResumeNext attempt(shared.trace);
    const excel::Range selection = core::selected_range(shared);
    if (!selection) return;

    if (cycle == StyleCycle::CenterStyleToggle) attempt([&] { selection.MergeCells(false); });
    {
        std::optional<core::RedrawingPause> pause;
        if (pauses_redrawing(cycle)) pause.emplace(shared, selection);
        attempt([&] {
            const StyleToggleRef& toggle = shared.settings().cycle(cycle);
            if (toggle) toggle->Apply(shared, selection, position);
        });
    }

    excel::FormatConditions conditions;
    attempt.assign(conditions, [&] { return selection.FormatConditions(); });
    attempt([&] { conditions.Delete(); });
    if (cycle == StyleCycle::BinaryStyleToggle) add_binary_conditions(shared, conditions);
}

std::string name_of_cycle(const core::SharedState& shared, StyleCycle cycle) {
    const StyleToggleRef& toggle = shared.settings().cycle(cycle);
    return toggle ? toggle->Name : std::string();
}

void ApplySmartCycleStyle(core::SharedState& shared, std::int32_t cycle_number, std::int32_t position,
                          const automation::ObjectRef& range) {
    if (!settings::is_my_style_cycle(cycle_number)) return;
    if (!excel::Range::is(range)) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const StyleToggleRef& toggle =
            shared.settings().cycle(settings::my_style_cycle(static_cast<std::size_t>(cycle_number)));
        if (toggle) toggle->Apply(shared, excel::Range(range), position);
    });
}

}  // namespace kestrune::styles
