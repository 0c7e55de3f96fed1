#include "host/objects/Patterns.h"

#include <utility>

#include "host/objects/Constants.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

constexpr std::pair<Pattern, std::int32_t> patterns[] = {
    {Pattern::None, xlNone},          {Pattern::Solid, xlSolid}, {Pattern::MediumGray, -4125},  // xlPatternGray50
    {Pattern::DarkGray, -4126},                                                                 // xlPatternGray75
    {Pattern::LightGray, -4124},                                                                // xlPatternGray25
    {Pattern::DarkHorizontal, -4128},                                                           // xlPatternHorizontal
    {Pattern::DarkVertical, -4166},                                                             // xlPatternVertical
    {Pattern::DarkDown, -4121},                                                                 // xlPatternDown
    {Pattern::DarkUp, -4162},                                                                   // xlPatternUp
    {Pattern::DarkGrid, 9},                                                                     // xlPatternChecker
    {Pattern::DarkTrellis, 10},                                                                 // xlPatternSemiGray75
    {Pattern::LightHorizontal, 11},  // xlPatternLightHorizontal
    {Pattern::LightVertical, 12},    // xlPatternLightVertical
    {Pattern::LightDown, 13},        // xlPatternLightDown
    {Pattern::LightUp, 14},          // xlPatternLightUp
    {Pattern::LightGrid, 15},        // xlPatternGrid
    {Pattern::LightTrellis, 16},     // xlPatternCrissCross
    {Pattern::Gray125, 17},          // xlPatternGray16
    {Pattern::Gray0625, 18},         // xlPatternGray8
};

// Where the cell's own colour is stored.
Color& cell_color_of(Fill& fill) { return fill.pattern == Pattern::Solid ? fill.foreground : fill.background; }
Color& line_color_of(Fill& fill) { return fill.pattern == Pattern::Solid ? fill.background : fill.foreground; }

}  // namespace

std::int32_t pattern_constant(const Fill& fill) {
    if (!fill.gradient.empty()) {
        const bool by_path = fill.gradient.find("\"path\"") != std::string::npos;
        return by_path ? xlPatternRectangularGradient : xlPatternLinearGradient;
    }
    for (const auto& [stored, constant] : patterns) {
        if (stored == fill.pattern) return constant;
    }
    return xlNone;
}

Pattern pattern_of(std::string_view member, std::int32_t constant) {
    if (constant == xlAutomatic) return Pattern::Solid;
    for (const auto& [stored, known] : patterns) {
        if (known == constant) return stored;
    }
    refuse(member, "there is no such pattern");
}

void change_pattern(Fill& fill, Pattern pattern) {
    if (pattern == Pattern::None) {
        fill = Fill{};
        return;
    }
    fill.gradient.clear();
    if (fill.pattern == Pattern::None) {
        fill.foreground = Color::automatic();
        fill.background = Color::automatic();
    }
    if ((fill.pattern == Pattern::Solid) != (pattern == Pattern::Solid) && fill.pattern != Pattern::None) {
        std::swap(fill.foreground, fill.background);
    }
    fill.pattern = pattern;
}

const Color& cell_color(const Fill& fill) { return fill.pattern == Pattern::Solid ? fill.foreground : fill.background; }

const Color& line_color(const Fill& fill) { return fill.pattern == Pattern::Solid ? fill.background : fill.foreground; }

void set_cell_color(Fill& fill, const Color& color) {
    if (fill.pattern == Pattern::None || !fill.gradient.empty()) {
        fill.pattern = Pattern::None;
        change_pattern(fill, Pattern::Solid);
    }
    cell_color_of(fill) = color;
}

void set_line_color(Fill& fill, const Color& color) {
    if (fill.pattern != Pattern::None) line_color_of(fill) = color;
}

}  // namespace kestrune::host
