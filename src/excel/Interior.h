#pragma once

#include <array>

#include "excel/Facade.h"

namespace kestrune::excel {

// The fill of a range or of a conditional format. Every reading answers Null when the cells differ.
class Interior : public Facade<Interior> {
  public:
    static constexpr std::string_view class_name = "Interior";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Color", Access::get_put},
        {"ColorIndex", Access::get_put},
        {"Pattern", Access::get_put},
        {"PatternColor", Access::get_put},
        {"PatternColorIndex", Access::get_put},
        {"PatternThemeColor", Access::get_put},
        {"PatternTintAndShade", Access::get_put},
        {"ThemeColor", Access::get_put},
        {"TintAndShade", Access::get_put},
    });
    using Facade::Facade;

    [[nodiscard]] Value Color() const { return get("Color"); }  // BGR; 0xFFFFFF without a fill
    void Color(Value value) const { put("Color", std::move(value)); }
    // 1 to 56 of the workbook's palette, or xlNone.
    [[nodiscard]] Value ColorIndex() const { return get("ColorIndex"); }
    void ColorIndex(Value value) const { put("ColorIndex", std::move(value)); }
    [[nodiscard]] Value Pattern() const { return get("Pattern"); }  // XlPattern
    void Pattern(Value value) const { put("Pattern", std::move(value)); }
    // The lines or dots of a pattern, as the members below without "Pattern" tell the colour behind them.
    [[nodiscard]] Value PatternColor() const { return get("PatternColor"); }
    void PatternColor(Value value) const { put("PatternColor", std::move(value)); }
    [[nodiscard]] Value PatternColorIndex() const { return get("PatternColorIndex"); }
    void PatternColorIndex(Value value) const { put("PatternColorIndex", std::move(value)); }
    [[nodiscard]] Value PatternThemeColor() const { return get("PatternThemeColor"); }
    void PatternThemeColor(Value value) const { put("PatternThemeColor", std::move(value)); }
    [[nodiscard]] Value PatternTintAndShade() const { return get("PatternTintAndShade"); }
    void PatternTintAndShade(Value value) const { put("PatternTintAndShade", std::move(value)); }
    // XlThemeColor; fails for a colour that is none of the theme's.
    [[nodiscard]] Value ThemeColor() const { return get("ThemeColor"); }
    void ThemeColor(Value value) const { put("ThemeColor", std::move(value)); }
    [[nodiscard]] Value TintAndShade() const { return get("TintAndShade"); }  // -1 (black) to 1 (white)
    void TintAndShade(Value value) const { put("TintAndShade", std::move(value)); }
};

}  // namespace kestrune::excel
