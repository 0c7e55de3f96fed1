#pragma once

#include <array>

#include "excel/Facade.h"

namespace kestrune::excel {

// One line of a range: an edge, a diagonal or all the lines inside. Every reading answers Null when
// the cells differ.
class Border : public Facade<Border> {
  public:
    static constexpr std::string_view class_name = "Border";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Color", Access::get_put},
        {"ColorIndex", Access::get_put},
        {"LineStyle", Access::get_put},
        {"ThemeColor", Access::get_put},
        {"TintAndShade", Access::get_put},
        {"Weight", Access::get_put},
    });
    using Facade::Facade;

    [[nodiscard]] Value Color() const { return get("Color"); }  // BGR
    void Color(Value value) const { put("Color", std::move(value)); }
    [[nodiscard]] Value ColorIndex() const { return get("ColorIndex"); }
    void ColorIndex(Value value) const { put("ColorIndex", std::move(value)); }
    [[nodiscard]] Value LineStyle() const { return get("LineStyle"); }  // XlLineStyle; xlNone without a line
    void LineStyle(Value value) const { put("LineStyle", std::move(value)); }
    // XlThemeColor; fails for a colour that is none of the theme's.
    [[nodiscard]] Value ThemeColor() const { return get("ThemeColor"); }
    void ThemeColor(Value value) const { put("ThemeColor", std::move(value)); }
    [[nodiscard]] Value TintAndShade() const { return get("TintAndShade"); }  // -1 (black) to 1 (white)
    void TintAndShade(Value value) const { put("TintAndShade", std::move(value)); }
    [[nodiscard]] Value Weight() const { return get("Weight"); }  // XlBorderWeight
    void Weight(Value value) const { put("Weight", std::move(value)); }
};

}  // namespace kestrune::excel
