#include <algorithm>

#include "cli/Failure.h"
#include "cli/prefs/SetOption.h"
#include "cli/run/FillOption.h"
#include "cli/run/Step.h"
#include "fuzz/targets.h"

namespace kestrune::fuzz {
namespace {

// Whether what was typed is refused, which takes one line.
template <class Reading>
bool refused(Reading&& reading, std::string_view typed) {
    try {
        reading();
        return false;
    } catch (const cli::UsageError& error) {
        const std::string_view why = error.what();
        expect(!why.empty(), "a refusal says why", typed);
        expect(why.find_first_of("\r\n") == std::string_view::npos ||
                   typed.find_first_of("\r\n") != std::string_view::npos,
               "a refusal is one line", typed, why);
        return true;
    }
}

}  // namespace

// What a person types is a step, or a setting, or is refused with a reason; a way through the menus comes back as
// typed.
void command_line(std::string_view typed) {
    if (typed.find('\0') != std::string_view::npos) return;  // no shell passes it
    refused(
        [&] {
            const cli::Step step = cli::parse_step(typed);
            const auto* menu = std::get_if<cli::MenuStep>(&step);
            // A caption that begins with "/" cannot be typed.
            const auto typeable = [](const std::string& part) { return !part.starts_with('/'); };
            if (menu && std::ranges::all_of(menu->path, typeable)) {
                const std::string again = cli::menu_path_text(menu->path);
                expect(cli::parse_menu_path(again) == menu->path, "a way through the menus comes back", typed, again);
            }
        },
        typed);
    refused(
        [&] {
            if (!cli::fill_option(typed)) {
                settings::cUserSettings settings;
                settings.LoadDefaults({.respected_cycle = "Respected", .today = automation::Date{46096}});
                cli::set_option(settings, std::string(typed));
            }
        },
        typed);
}

}  // namespace kestrune::fuzz
