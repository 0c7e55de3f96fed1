#pragma once

#include <cstdint>
#include <string_view>

namespace kestrune::brxllib {

// What AutoColor does and in which colours, BGR. A fresh record holds the defaults: inputs, formulas and links as
// models are commonly coloured, partial inputs in Excel's standard purple, hyperlinks as Excel's own theme shows them.
struct AutoColorSettings {
    bool bAutoColorOn = false;         // cells are coloured as they change
    bool bAutoColorHyperlinks = true;  // links to click have their colour; else the cell counts by what it holds
    bool bAutoColorText = false;       // typed texts count as inputs; else they keep their colours
    bool bAutoColorDate = true;        // typed dates count as inputs; else they keep their colours

    std::int32_t InputColor = 0xFF0000;
    std::int32_t PartialInputColor = 0xA03070;
    std::int32_t FormulaColor = 0x000000;
    std::int32_t WksLinkColor = 0x008000;
    std::int32_t WkbLinkColor = 0x0000FF;
    std::int32_t HyperLinkColor = 0xC16305;
};

// A font-colour SmartCycle of this name holds colours that AutoColor leaves alone.
inline constexpr std::string_view respected_smart_cycle = "Do Not AutoColor SmartCycle";

}  // namespace kestrune::brxllib
