#include "settings/dialog/CyclesPage.h"

#include <algorithm>

#include "automation/Text.h"

namespace kestrune::settings {

using forms::Event;

namespace {

// Whether a SmartCycle of either kind has a name.
bool has_cycle(const cUserSettings& settings, std::string_view name) {
    for (std::size_t i = 0; i < style_cycle_count; ++i) {
        if (automation::same_text(settings.cycle(static_cast<StyleCycle>(i))->Name, name)) return true;
    }
    for (std::size_t i = 0; i < numeric_cycle_count; ++i) {
        if (automation::same_text(settings.cycle(static_cast<NumericCycle>(i))->Name, name)) return true;
    }
    return false;
}

}  // namespace

CyclesPage::CyclesPage(forms::Form& form, Draft& draft, const CycleControls& controls)
    : SettingsPage(form, draft), controls_(controls) {
    form.on(controls_.cycles, Event::Change, [this](auto&) {
        if (!filling()) show_cycle();
    });
    form.on(controls_.entries, Event::Change, [this](auto&) {
        enable_buttons();
        if (!filling()) entry_chosen();
    });
    // Who types a name and goes on means it.
    form.on(controls_.name, Event::AfterUpdate, [this](auto&) { rename(); });
    form.on(controls_.rename, Event::Click, [this](auto&) { rename(); });
    form.on(controls_.up, Event::Click, [this](auto&) { move(-1); });
    form.on(controls_.down, Event::Click, [this](auto&) { move(1); });
    form.on(controls_.remove, Event::Click, [this](auto&) {
        const std::int32_t entry = at(controls_.entries).ListIndex();
        if (entry < 0) return;
        remove_entry(entry);
        const auto left = static_cast<std::int32_t>(at(controls_.entries).List().size()) - 1;
        show_entries(std::min(entry, left - 1));
    });
}

void CyclesPage::show() {
    show_cycles(std::max(0, at(controls_.cycles).ListIndex()));
    show_cycle();
}

std::size_t CyclesPage::chosen_cycle() const {
    return static_cast<std::size_t>(std::max(0, at(controls_.cycles).ListIndex()));
}

void CyclesPage::show_cycles(std::int32_t chosen) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < cycle_count(); ++i) names.push_back(name_of(i));
    fill(controls_.cycles, std::move(names), chosen);
}

void CyclesPage::show_cycle() {
    at(controls_.name).Text(name_of(chosen_cycle()));
    cycle_chosen();
    show_entries(entry_texts().empty() ? -1 : 0);
}

void CyclesPage::show_entries(std::int32_t chosen) {
    fill(controls_.entries, entry_texts(), chosen);
    enable_buttons();
    entry_chosen();
}

void CyclesPage::rename() {
    std::string& name = name_of(chosen_cycle());
    const std::string wanted(automation::trimmed(at(controls_.name).Text()));
    if (wanted == name) return;
    if (wanted.empty()) {
        tell(core::Text::CycleNameMissing);
    } else if (!automation::same_text(wanted, name) && has_cycle(settings(), wanted)) {
        tell(core::Text::CycleNameTaken, wanted);
    } else {
        name = wanted;
        show_cycles(static_cast<std::int32_t>(chosen_cycle()));
    }
    at(controls_.name).Text(name);
}

void CyclesPage::move(std::int32_t step) {
    const std::int32_t from = at(controls_.entries).ListIndex();
    const std::int32_t to = from + step;
    if (from < 0 || to < 0 || to >= static_cast<std::int32_t>(at(controls_.entries).List().size())) return;
    move_entry(from, to);
    show_entries(to);
}

void CyclesPage::enable_buttons() const {
    const std::int32_t entry = at(controls_.entries).ListIndex();
    const auto count = static_cast<std::int32_t>(at(controls_.entries).List().size());
    at(controls_.up).Enabled(entry > 0);
    at(controls_.down).Enabled(entry >= 0 && entry + 1 < count);
    at(controls_.remove).Enabled(entry >= 0);
}

}  // namespace kestrune::settings
