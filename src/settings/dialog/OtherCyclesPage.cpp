#include "settings/dialog/OtherCyclesPage.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "automation/Text.h"
#include "settings/ColorChoices.h"
#include "styles/ColorText.h"

namespace kestrune::settings {

using forms::Event;

namespace {

constexpr CycleControls controls{"lstLongToggles", "txtLongToggleName", "btnRenameLongToggle", "lstSettings",
                                 "btnSettingUp",   "btnSettingDown",    "btnRemoveSetting"};

// What the values of a cycle are, and Excel's limits for them.
struct Property {
    std::string_view label;
    double most;
    bool whole;
    core::Text problem;
};

constexpr Property indent{"Indent:", 15, true, core::Text::NoIndent};
constexpr Property row_height{"Row height (points):", 409.5, false, core::Text::NoRowHeight};
constexpr Property column_width{"Column width (characters):", 255, false, core::Text::NoColumnWidth};
constexpr Property color{"Font color:", 0xFFFFFF, true, core::Text::NoColor};

// In the order of NumericCycle.
constexpr std::array<const Property*, numeric_cycle_count> properties{
    &indent, &indent, &row_height, &column_width, &color, &color, &color, &color, &color};

// What is recognised for each value, where a file had less of that: the values themselves.
void complete(styles::cLongToggle& cycle) {
    for (std::size_t i = cycle.LookFors.size(); i < cycle.Settings.size(); ++i) {
        cycle.LookFors.push_back(cycle.Settings[i]);
    }
    cycle.LookFors.resize(cycle.Settings.size());
}

}  // namespace

OtherCyclesPage::OtherCyclesPage(forms::Form& form, Draft& draft) : CyclesPage(form, draft, controls) {
    form.on("cmbSetting", Event::Change, [this](auto&) { show_patch(); });
    form.on("btnAddSetting", Event::Click, [this](auto&) { add(); });
    form.on("btnChangeSetting", Event::Click, [this](auto&) { change(); });
}

styles::cLongToggle& OtherCyclesPage::cycle() const {
    return *settings().cycle(static_cast<NumericCycle>(chosen_cycle()));
}

bool OtherCyclesPage::has_colors() const { return properties[chosen_cycle()] == &color; }

std::string& OtherCyclesPage::name_of(std::size_t cycle) const {
    return settings().cycle(static_cast<NumericCycle>(cycle))->Name;
}

std::string OtherCyclesPage::text_of(double value) const {
    return has_colors() ? styles::color_text(static_cast<std::int32_t>(value)) : fmt::format("{}", value);
}

std::vector<std::string> OtherCyclesPage::entry_texts() const {
    std::vector<std::string> texts;
    for (const double value : cycle().Settings) texts.push_back(text_of(value));
    return texts;
}

void OtherCyclesPage::move_entry(std::int32_t from, std::int32_t to) {
    complete(cycle());
    for (auto* list : {&cycle().Settings, &cycle().LookFors})
        std::swap((*list)[static_cast<std::size_t>(from)], (*list)[static_cast<std::size_t>(to)]);
}

void OtherCyclesPage::remove_entry(std::int32_t entry) {
    complete(cycle());
    for (auto* list : {&cycle().Settings, &cycle().LookFors}) list->erase(list->begin() + entry);
}

void OtherCyclesPage::cycle_chosen() {
    const Property& property = *properties[chosen_cycle()];
    at("lblSetting").Caption(std::string(property.label));
    if (has_colors()) {
        offer_colors(at("cmbSetting"));
    } else {
        std::vector<std::string> offered;
        for (int i = 0; property.whole && i <= static_cast<int>(property.most); ++i)
            offered.push_back(std::to_string(i));
        at("cmbSetting").ItemPictures({});
        at("cmbSetting").List(std::move(offered));
    }
    at("imgSetting").Visible(has_colors());
}

void OtherCyclesPage::entry_chosen() {
    const std::int32_t entry = at("lstSettings").ListIndex();
    at("cmbSetting").Text(entry < 0 ? std::string() : at("lstSettings").Text());
    at("btnChangeSetting").Enabled(entry >= 0);
}

void OtherCyclesPage::show_patch() {
    if (has_colors()) at("imgSetting").Picture(styles::color_patch(styles::color_meant(at("cmbSetting").Text())));
}

std::optional<double> OtherCyclesPage::new_value() {
    const std::string text(automation::trimmed(at("cmbSetting").Text()));
    const Property& property = *properties[chosen_cycle()];
    std::optional<double> value;
    if (has_colors()) {
        value = styles::color_meant(text);
    } else {
        value = shared().general().typed_number(text);
        const bool fits = value && *value >= 0 && *value <= property.most;
        if (!fits || (property.whole && *value != std::floor(*value))) value.reset();
    }
    if (!value) {
        tell(property.problem, has_colors() ? text : std::string());
    } else if (cycle().IncludesSetting(*value, false)) {
        tell(core::Text::ValueIsInCycle, text_of(*value));
        value.reset();
    }
    if (!value) form_.SetFocus("cmbSetting");
    return value;
}

void OtherCyclesPage::add() {
    const auto value = new_value();
    if (!value) return;
    const std::int32_t place = at("lstSettings").ListIndex() + 1;
    const auto end = static_cast<std::int32_t>(cycle().Settings.size());
    complete(cycle());
    const std::int32_t to = place > 0 ? place : end;
    for (auto* list : {&cycle().Settings, &cycle().LookFors}) list->insert(list->begin() + to, *value);
    show_entries(to);
}

void OtherCyclesPage::change() {
    const std::int32_t entry = at("lstSettings").ListIndex();
    if (entry < 0 || automation::trimmed(at("cmbSetting").Text()) == at("lstSettings").Text()) return;
    const auto value = new_value();
    if (!value) return;
    complete(cycle());
    for (auto* list : {&cycle().Settings, &cycle().LookFors}) (*list)[static_cast<std::size_t>(entry)] = *value;
    show_entries(entry);
}

}  // namespace kestrune::settings
