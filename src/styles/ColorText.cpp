#include "styles/ColorText.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

#include "automation/Text.h"

namespace kestrune::styles {
namespace {

// Red, green and blue from high to low, as people write colours; and the other way round, as Windows does.
constexpr std::int32_t swapped(std::int32_t color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

constexpr NamedColor named(std::string_view name, std::int32_t rgb) { return {name, swapped(rgb)}; }

constexpr auto names = std::to_array<NamedColor>({
    named("Black", 0x000000),
    named("Brown", 0x993300),
    named("Olive Green", 0x333300),
    named("Dark Green", 0x003300),
    named("Dark Teal", 0x003366),
    named("Dark Blue", 0x000080),
    named("Indigo", 0x333399),
    named("Gray-80%", 0x333333),
    named("Dark Red", 0x800000),
    named("Orange", 0xFF6600),
    named("Dark Yellow", 0x808000),
    named("Green", 0x008000),
    named("Teal", 0x008080),
    named("Blue", 0x0000FF),
    named("Blue-Gray", 0x666699),
    named("Gray-50%", 0x808080),
    named("Red", 0xFF0000),
    named("Light Orange", 0xFF9900),
    named("Lime", 0x99CC00),
    named("Sea Green", 0x339966),
    named("Aqua", 0x33CCCC),
    named("Light Blue", 0x3366FF),
    named("Violet", 0x800080),
    named("Gray-40%", 0x969696),
    named("Pink", 0xFF00FF),
    named("Gold", 0xFFCC00),
    named("Yellow", 0xFFFF00),
    named("Bright Green", 0x00FF00),
    named("Turquoise", 0x00FFFF),
    named("Sky Blue", 0x00CCFF),
    named("Plum", 0x993366),
    named("Gray-25%", 0xC0C0C0),
    named("Rose", 0xFF99CC),
    named("Tan", 0xFFCC99),
    named("Light Yellow", 0xFFFF99),
    named("Light Green", 0xCCFFCC),
    named("Light Turquoise", 0xCCFFFF),
    named("Pale Blue", 0x99CCFF),
    named("Lavender", 0xCC99FF),
    named("White", 0xFFFFFF),
});

constexpr std::int32_t patch_size = 16;  // pixels

}  // namespace

std::span<const NamedColor> named_colors() { return names; }

std::string color_text(std::int32_t color) {
    const auto* found = std::ranges::find(names, color, &NamedColor::color);
    return found != names.end() ? std::string(found->name) : fmt::format("#{:06X}", swapped(color));
}

std::optional<std::int32_t> color_meant(std::string_view text) {
    text = automation::trimmed(text);
    const auto* found =
        std::ranges::find_if(names, [&](const NamedColor& row) { return automation::same_text(row.name, text); });
    if (found != names.end()) return found->color;
    if (text.size() != 7 || text.front() != '#') return std::nullopt;
    std::int32_t rgb = 0;
    const auto [end, failure] = std::from_chars(text.data() + 1, text.data() + text.size(), rgb, 16);
    if (failure != std::errc{} || end != text.data() + text.size() || rgb < 0) return std::nullopt;
    return swapped(rgb);
}

std::shared_ptr<const forms::Picture> color_patch(std::optional<std::int32_t> color) {
    constexpr std::uint32_t opaque = 0xFF000000;
    constexpr std::uint32_t edge = 0xFF808080;
    const std::uint32_t inside = color ? opaque | static_cast<std::uint32_t>(swapped(*color & 0xFFFFFF)) : 0;
    forms::Picture picture{patch_size, patch_size, {}};
    for (std::int32_t y = 0; y < patch_size; ++y) {
        for (std::int32_t x = 0; x < patch_size; ++x) {
            const bool on_edge = x == 0 || y == 0 || x == patch_size - 1 || y == patch_size - 1;
            picture.pixels.push_back(on_edge ? edge : inside);
        }
    }
    return std::make_shared<const forms::Picture>(std::move(picture));
}

}  // namespace kestrune::styles
