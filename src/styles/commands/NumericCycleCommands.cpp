#include "styles/commands/NumericCycleCommands.h"

#include <array>

#include "automation/ResumeNext.h"
#include "core/bridges/Selection.h"
#include "settings/cUserSettings.h"

namespace kestrune::styles {
namespace {

// What each cycle drives, in the order of NumericCycle.
constexpr std::array<decltype(&cLongToggle::ApplyAsIndents), settings::numeric_cycle_count> apply_members{
    &cLongToggle::ApplyAsIndents,  &cLongToggle::ApplyAsRightIndents, &cLongToggle::ApplyAsRowHeight,
    &cLongToggle::ApplyAsColWidth, &cLongToggle::ApplyAsColors,       &cLongToggle::ApplyAsColors,
    &cLongToggle::ApplyAsColors,   &cLongToggle::ApplyAsColors,       &cLongToggle::ApplyAsColors,
};

}  // namespace

void apply_numeric_cycle(core::SharedState& shared, settings::NumericCycle cycle, std::int32_t position) {
    const automation::ResumeNext attempt(shared.trace);
    const excel::Range selection = core::selected_range(shared);
    if (!selection) return;
    attempt([&] {
        const LongToggleRef toggle = shared.settings().cycle(cycle);
        const auto apply = apply_members[static_cast<std::size_t>(cycle)];
        if (toggle) (*toggle.*apply)(shared, selection, position);
    });
}

std::string name_of_cycle(const core::SharedState& shared, settings::NumericCycle cycle) {
    return shared.user_settings && shared.user_settings->cycle(cycle) ? shared.user_settings->cycle(cycle)->Name
                                                                      : std::string();
}

}  // namespace kestrune::styles
