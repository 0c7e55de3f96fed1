#include "settings/StyleEdits.h"

#include <array>
#include <utility>

#include "automation/Text.h"

namespace kestrune::settings {

using automation::same_text;
using styles::cStyle;

namespace {

template <class Settings, class Act>
void for_each_style_cycle(Settings& settings, Act&& act) {
    for (std::size_t i = 0; i < style_cycle_count; ++i) act(*settings.cycle(static_cast<StyleCycle>(i)));
}

}  // namespace

void rename_style(cUserSettings& settings, cStyle& style, const std::string& name) {
    for (std::string* used : {&settings.SmartFillDates.Style, &settings.SmartFillNumbers.Style}) {
        if (same_text(*used, style.FriendlyName)) *used = name;
    }
    style.FriendlyName = name;
    settings.Styles->follow_name(style);
    for_each_style_cycle(settings, [&](auto& cycle) { cycle.Styles->follow_name(style); });
}

std::string use_of(const cUserSettings& settings, const cStyle& style) {
    const auto uses = std::to_array<std::pair<bool, const char*>>({
        {settings.BRPaintbrushStyle.get() == &style, "the Paintbrush style"},
        {settings.SheetStyle.get() == &style, "the sheet style"},
        {same_text(settings.SmartFillDates.Style, style.FriendlyName), "the style of Smart Fill Dates"},
        {same_text(settings.SmartFillNumbers.Style, style.FriendlyName), "the style of Smart Fill Numbers"},
    });
    for (const auto& [used, what] : uses) {
        if (used) return what;
    }
    return {};
}

std::vector<std::string> cycles_with(const cUserSettings& settings, const cStyle& style) {
    std::vector<std::string> names;
    for_each_style_cycle(settings, [&](const auto& cycle) {
        if (cycle.Styles->position_of(style) > 0) names.push_back(cycle.Name);
    });
    return names;
}

void remove_style(cUserSettings& settings, cStyle& style) {
    for_each_style_cycle(settings, [&](auto& cycle) { cycle.Styles->Remove(cycle.Styles->position_of(style)); });
    settings.Styles->Remove(settings.Styles->position_of(style));
}

std::string unused_style_name(const cUserSettings& settings, std::string_view name) {
    std::string free(name);
    for (int number = 2; settings.Styles->Item(free); ++number) {
        free = std::string(name) + " " + std::to_string(number);
    }
    return free;
}

}  // namespace kestrune::settings
