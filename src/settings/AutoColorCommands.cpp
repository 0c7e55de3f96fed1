#include "settings/AutoColorCommands.h"

#include "automation/ResumeNext.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

using automation::ResumeNext;
using core::SharedState;

void hand_over_auto_color(SharedState& shared) {
    const ResumeNext attempt(shared.trace);
    attempt([&] { shared.spreadsheet().set_auto_color(shared.settings()); });
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
