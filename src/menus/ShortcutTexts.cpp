#include "menus/ShortcutTexts.h"

#include "automation/ResumeNext.h"

namespace kestrune::menus {

ShortcutTexts::ShortcutTexts(const core::SharedState& shared) {
    const automation::ResumeNext attempt(shared.trace);
    attempt([&] {
        for (auto& [command, key] : shared.general().hot_key_texts()) keys_.emplace(command, key);
    });
}

std::string ShortcutTexts::key(std::string_view command) const {
    const auto found = keys_.find(std::string(command));
    return found == keys_.end() ? std::string() : found->second;
}

std::string ShortcutTexts::text(std::string_view command) const {
    const std::string assigned = key(command);
    return assigned.empty() ? "[No shortcut assigned]" : "Shortcut: " + assigned;
}

bool has_key(const MenuRow& row) {
    return (!row.request.empty() && row.request.find('.') == std::string_view::npos) || row.member == "BRUndo" ||
           row.member == "BRRedo";
}

}  // namespace kestrune::menus
