#pragma once

#include <array>

#include "excel/Facade.h"

namespace kestrune::excel {

// The font of a range or of a conditional format. Every reading answers Null when the cells differ.
class Font : public Facade<Font> {
  public:
    static constexpr std::string_view class_name = "Font";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Bold", Access::get_put},
        {"Color", Access::get_put},
        {"ColorIndex", Access::get_put},
        {"Italic", Access::get_put},
        {"Name", Access::get_put},
        {"Size", Access::get_put},
        {"Strikethrough", Access::get_put},
        {"Subscript", Access::get_put},
        {"Superscript", Access::get_put},
        {"ThemeColor", Access::get_put},
        {"ThemeFont", Access::get_put},
        {"TintAndShade", Access::get_put},
        {"Underline", Access::get_put},
    });
    using Facade::Facade;

    [[nodiscard]] Value Bold() const { return get("Bold"); }
    void Bold(Value value) const { put("Bold", std::move(value)); }
    [[nodiscard]] Value Color() const { return get("Color"); }  // BGR
    void Color(Value value) const { put("Color", std::move(value)); }
    // 1 to 56 of the workbook's palette, or xlColorIndexAutomatic.
    [[nodiscard]] Value ColorIndex() const { return get("ColorIndex"); }
    void ColorIndex(Value value) const { put("ColorIndex", std::move(value)); }
    [[nodiscard]] Value Italic() const { return get("Italic"); }
    void Italic(Value value) const { put("Italic", std::move(value)); }
    [[nodiscard]] Value Name() const { return get("Name"); }
    void Name(Value value) const { put("Name", std::move(value)); }
    [[nodiscard]] Value Size() const { return get("Size"); }  // points
    void Size(Value value) const { put("Size", std::move(value)); }
    [[nodiscard]] Value Strikethrough() const { return get("Strikethrough"); }
    void Strikethrough(Value value) const { put("Strikethrough", std::move(value)); }
    [[nodiscard]] Value Subscript() const { return get("Subscript"); }
    void Subscript(Value value) const { put("Subscript", std::move(value)); }
    [[nodiscard]] Value Superscript() const { return get("Superscript"); }
    void Superscript(Value value) const { put("Superscript", std::move(value)); }
    // XlThemeColor; fails for a colour that is none of the theme's.
    [[nodiscard]] Value ThemeColor() const { return get("ThemeColor"); }
    void ThemeColor(Value value) const { put("ThemeColor", std::move(value)); }
    [[nodiscard]] Value ThemeFont() const { return get("ThemeFont"); }  // XlThemeFont
    void ThemeFont(Value value) const { put("ThemeFont", std::move(value)); }
    [[nodiscard]] Value TintAndShade() const { return get("TintAndShade"); }  // -1 (black) to 1 (white)
    void TintAndShade(Value value) const { put("TintAndShade", std::move(value)); }
    [[nodiscard]] Value Underline() const { return get("Underline"); }  // XlUnderlineStyle
    void Underline(Value value) const { put("Underline", std::move(value)); }
};

}  // namespace kestrune::excel
