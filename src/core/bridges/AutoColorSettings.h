#pragma once

#include <cstdint>

namespace kestrune::core {

// What AutoColor does and in which colours (BGR), under the names of the AutoColor service's properties.
struct AutoColorSettings {
    bool bAutoColorOn = false;          // cells are coloured as they change
    bool bAutoColorHyperlinks = false;  // links to click have a colour of their own
    bool bAutoColorText = false;        // typed texts count as inputs
    bool bAutoColorDate = false;        // typed dates count as inputs
    std::int32_t InputColor = 0;
    std::int32_t PartialInputColor = 0;
    std::int32_t FormulaColor = 0;
    std::int32_t WksLinkColor = 0;
    std::int32_t WkbLinkColor = 0;
    std::int32_t HyperLinkColor = 0;

    bool operator==(const AutoColorSettings&) const = default;
};

// Calls act with the name of each setting and the setting itself, in the order above.
template <class Settings, class Act>
void for_each_setting(Settings& settings, Act&& act) {
    act("bAutoColorOn", settings.bAutoColorOn);
    act("bAutoColorHyperlinks", settings.bAutoColorHyperlinks);
    act("bAutoColorText", settings.bAutoColorText);
    act("bAutoColorDate", settings.bAutoColorDate);
    act("InputColor", settings.InputColor);
    act("PartialInputColor", settings.PartialInputColor);
    act("FormulaColor", settings.FormulaColor);
    act("WksLinkColor", settings.WksLinkColor);
    act("WkbLinkColor", settings.WkbLinkColor);
    act("HyperLinkColor", settings.HyperLinkColor);
}

}  // namespace kestrune::core
