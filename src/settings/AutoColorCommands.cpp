#include "settings/AutoColorCommands.h"

#include <string>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

using automation::ResumeNext;
using core::SharedState;

void hand_over_auto_color(SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { shared.spreadsheet().set_auto_color(shared.settings()); });
}

bool is_respected_color(const SharedState& shared, const automation::Value& color) {
    const ResumeNext attempt(shared.trace);
    bool respected = false;
    attempt.assign(respected, [&] {
        const std::string designated = shared.spreadsheet().auto_color_smart_cycle();
        for (std::size_t number = 1; number <= my_color_cycle_count; ++number) {
            const styles::cLongToggle& cycle = *shared.settings().cycle(my_color_cycle(number));
            // What a cell was given is asked for, not the palette's nearest, which other cells may have by themselves.
            if (cycle.Name == designated) return cycle.IncludesSetting(automation::to_double(color), false);
        }
        return false;
    });
    return respected;
}

void toggle_auto_color(SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { shared.spreadsheet().toggle_auto_color(); });
}

void toggle_black_fonts(SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { shared.spreadsheet().toggle_black_fonts(); });
}

void auto_color_selection(SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { shared.spreadsheet().auto_color_selection(); });
}

void auto_color_worksheet(SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { shared.spreadsheet().auto_color_worksheet(); });
}

void auto_color_workbook(SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { shared.spreadsheet().auto_color_workbook(); });
}

}  // namespace kestrune::settings
