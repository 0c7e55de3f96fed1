#include "core/HotKeys.h"

#include <array>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"

namespace kestrune::core {
namespace {

// The companion workbook's module of macros, one for each member of iGlobal.
constexpr std::string_view macro_module = "mDOM";

// Undo has no key of its own: Ctrl+Z reaches it through Excel's list. Redo has none in Excel that is always ours.
constexpr auto macros = std::to_array<HotKeyMacro>({
    {"BRUndo", "Undo", "Takes back what the last command changed.", "", "Undo"},
    {"BRRedo", "Redo", "Does again what undo took back.", "Ctrl+Shift+Z", "Undo"},
});

}  // namespace

void start_hot_keys(const SharedState& shared) {
    const automation::ResumeNext attempt(shared.trace);
    std::string workbook;
    attempt.assign(workbook, [&] {
        return automation::to_text(automation::get(automation::to_required_object(shared.add_in_workbook), "Name"));
    });
    if (workbook.empty()) return;
    for (const HotKeyMacro& macro : macros) attempt([&] { shared.general().add_hot_key_macro(macro); });
    attempt([&] { shared.general().set_hot_key_macros(workbook, macro_module); });
    attempt([&] { shared.general().bind_hot_keys(); });
}

}  // namespace kestrune::core
