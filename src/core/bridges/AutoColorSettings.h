#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <variant>

namespace kestrune::core {

// What AutoColor does and in which colours (BGR), under the names of the AutoColor service's properties.
struct AutoColorSettings {
    bool bAutoColorOn = false;          // cells are coloured as they change
    bool bAutoColorHyperlinks = false;  // links to click have a colour of their own
    bool bAutoColorText = false;        // typed texts count as inputs
    bool bAutoColorDate = false;        // typed dates count as inputs
    std::int32_t InputColor = 0;
    std::int32_t FormulaColor = 0;
    std::int32_t WksLinkColor = 0;
    std::int32_t WkbLinkColor = 0;
    std::int32_t HyperLinkColor = 0;
    std::int32_t PartialInputColor = 0;

    bool operator==(const AutoColorSettings&) const = default;
};

struct AutoColorField {
    std::string_view name;
    std::variant<bool AutoColorSettings::*, std::int32_t AutoColorSettings::*> member;
};

// Every setting.
inline constexpr auto auto_color_fields = std::to_array<AutoColorField>({
    {"bAutoColorOn", &AutoColorSettings::bAutoColorOn},
    {"bAutoColorHyperlinks", &AutoColorSettings::bAutoColorHyperlinks},
    {"bAutoColorText", &AutoColorSettings::bAutoColorText},
    {"bAutoColorDate", &AutoColorSettings::bAutoColorDate},
    {"InputColor", &AutoColorSettings::InputColor},
    {"FormulaColor", &AutoColorSettings::FormulaColor},
    {"WksLinkColor", &AutoColorSettings::WksLinkColor},
    {"WkbLinkColor", &AutoColorSettings::WkbLinkColor},
    {"HyperLinkColor", &AutoColorSettings::HyperLinkColor},
    {"PartialInputColor", &AutoColorSettings::PartialInputColor},
});

// Calls act with the name of each setting and the setting itself.
template <class Settings, class Act>
void for_each_setting(Settings& settings, Act&& act) {
    for (const AutoColorField& field : auto_color_fields) {
        std::visit([&](auto member) { act(field.name, settings.*member); }, field.member);
    }
}

}  // namespace kestrune::core
