#pragma once

#include <cstdint>

namespace kestrune::host {

// A colour as a workbook stores it (ECMA-376 18.8.3): a true colour, a theme colour with a tint, a
// palette entry, or the window's own text or background colour.
struct Color {
    enum class Kind : std::uint8_t { None, Automatic, Rgb, Theme, Indexed };

    Kind kind = Kind::None;
    // Rgb: blue, green, red bytes from high to low (red is 255). Theme: 0-based index into the theme's
    // colours in the file's order (0 light 1, 1 dark 1, 2 light 2, 3 dark 2, 4.. accents). Indexed:
    // 0..63 palette (entries 8..63 are Workbook.Colors 1..56), 64 and 65 the system's.
    std::uint32_t value = 0;
    double tint = 0;  // -1 (black) to 1 (white), applied to a theme or palette colour's luminance

    bool operator==(const Color&) const = default;

    static Color rgb(std::uint32_t bgr) { return {Kind::Rgb, bgr, 0}; }
    static Color automatic() { return {Kind::Automatic, 0, 0}; }
    static Color theme(std::uint32_t index, double tint = 0) { return {Kind::Theme, index, tint}; }
    static Color indexed(std::uint32_t index) { return {Kind::Indexed, index, 0}; }
};

}  // namespace kestrune::host
