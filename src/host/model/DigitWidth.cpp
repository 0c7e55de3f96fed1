#include "host/model/DigitWidth.h"

#include <algorithm>
#include <cmath>

#include "formula/Characters.h"

namespace kestrune::host {
namespace {

// Advance of the digits in parts of the em square, from the fonts' own metrics. Fonts hinted for the screen take a
// pixel less than rounding gives; `rounding` is what is added before the fraction is dropped.
struct DigitAdvance {
    std::string_view font;
    double em;
    double rounding = 0.5;
};

constexpr DigitAdvance advances[] = {
    {"Calibri", 0.507, 0.1},
    {"Calibri Light", 0.507, 0.1},
    {"Aptos Narrow", 0.5, 0.1},
    {"Aptos", 0.561, 0.1},
    {"Aptos Display", 0.561, 0.1},
    {"Arial", 0.556},
    {"Arial Narrow", 0.456},
    {"Helvetica", 0.556},
    {"Liberation Sans", 0.556},
    {"Times New Roman", 0.5},
    {"Times", 0.5},
    {"Garamond", 0.47},
    {"Georgia", 0.614},
    {"Book Antiqua", 0.5},
    {"Palatino Linotype", 0.5},
    {"Cambria", 0.554, 0.1},
    {"Century Gothic", 0.554},
    {"Franklin Gothic Book", 0.554},
    {"Verdana", 0.636},
    {"Tahoma", 0.546},
    {"Segoe UI", 0.539},
    {"Trebuchet MS", 0.524},
    {"MS Sans Serif", 0.546},
    {"Courier New", 0.6},
    {"Consolas", 0.55},
};

constexpr DigitAdvance unknown_font{"", 0.53};

}  // namespace

std::int32_t digit_pixels_of(std::string_view font, double points) {
    const auto* known = std::ranges::find_if(
        advances, [&](const DigitAdvance& row) { return formula::equal_ignoring_case(row.font, font); });
    const DigitAdvance& advance = known == std::end(advances) ? unknown_font : *known;
    // The screen has fonts in whole pixels only.
    const double em_pixels = std::round(points * 96 / 72);
    return std::max(1, static_cast<std::int32_t>(std::min(em_pixels, 4096.0) * advance.em + advance.rounding));
}

}  // namespace kestrune::host
