#include "host/objects/ConditionFontObject.h"

#include "host/objects/Colors.h"
#include "host/objects/FormatConditionObject.h"
#include "host/objects/Underlines.h"

namespace kestrune::host {
namespace {

Value value_or_null(const std::optional<bool>& component) { return component ? Value(*component) : Value(Null{}); }

}  // namespace

ObjectRef ConditionFontObject::parent() const { return std::make_shared<FormatConditionObject>(rule_); }

Value ConditionFontObject::bold() const { return value_or_null(rule_.differential().bold); }

void ConditionFontObject::set_bold(bool on) {
    rule_.change_differential("Font.Bold", [&](DifferentialFormat& format) { format.bold = on; });
}

Value ConditionFontObject::italic() const { return value_or_null(rule_.differential().italic); }

void ConditionFontObject::set_italic(bool on) {
    rule_.change_differential("Font.Italic", [&](DifferentialFormat& format) { format.italic = on; });
}

Value ConditionFontObject::strikethrough() const { return value_or_null(rule_.differential().strike); }

void ConditionFontObject::set_strikethrough(bool on) {
    rule_.change_differential("Font.Strikethrough", [&](DifferentialFormat& format) { format.strike = on; });
}

Value ConditionFontObject::underline() const {
    const auto underline = rule_.differential().underline;
    return underline ? Value(underline_constant(*underline)) : Value(Null{});
}

void ConditionFontObject::set_underline(const Value& style) {
    const Underline underline = underline_of("Font.Underline", style);
    rule_.change_differential("Font.Underline", [&](DifferentialFormat& format) { format.underline = underline; });
}

Value ConditionFontObject::color() const {
    const auto color = rule_.differential().font_color;
    return color ? color_value(rule_.workbook(), *color, 0) : Value(Null{});
}

void ConditionFontObject::set_color(std::int32_t bgr) {
    rule_.change_differential("Font.Color",
                              [&](DifferentialFormat& format) { format.font_color = color_of_value(bgr); });
}

Value ConditionFontObject::color_index() const {
    const auto color = rule_.differential().font_color;
    return color ? host::color_index(rule_.workbook(), *color) : Value(Null{});
}

void ConditionFontObject::set_color_index(std::int32_t index) {
    const Color color = color_of_index("Font.ColorIndex", index);
    rule_.change_differential("Font.ColorIndex", [&](DifferentialFormat& format) { format.font_color = color; });
}

Value ConditionFontObject::theme_color() const {
    const auto color = rule_.differential().font_color;
    return color ? themed("Font.ThemeColor", host::theme_color(*color)) : Value(Null{});
}

void ConditionFontObject::set_theme_color(std::int32_t color) {
    const Color stored = color_of_theme("Font.ThemeColor", color);
    rule_.change_differential("Font.ThemeColor", [&](DifferentialFormat& format) { format.font_color = stored; });
}

Value ConditionFontObject::tint_and_shade() const {
    const auto color = rule_.differential().font_color;
    return color ? Value(color->tint) : Value(Null{});
}

void ConditionFontObject::set_tint_and_shade(double tint) {
    const double checked = checked_tint("Font.TintAndShade", tint);
    rule_.change_differential("Font.TintAndShade", [&](DifferentialFormat& format) {
        if (format.font_color) format.font_color->tint = checked;
    });
}

const MemberTable& ConditionFontObject::members() {
    using F = ConditionFontObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&F::application>("Application", 1), read_only<&F::parent>("Parent", 2),
        read_only<&F::nothing>("Name", 3), read_only<&F::nothing>("Size", 4),
        property<&F::bold, &F::set_bold>("Bold", 5), property<&F::italic, &F::set_italic>("Italic", 6),
        property<&F::strikethrough, &F::set_strikethrough>("Strikethrough", 7),
        property<&F::underline, &F::set_underline>("Underline", 8), property<&F::color, &F::set_color>("Color", 9),
        property<&F::color_index, &F::set_color_index>("ColorIndex", 10),
        property<&F::theme_color, &F::set_theme_color>("ThemeColor", 11),
        property<&F::tint_and_shade, &F::set_tint_and_shade>("TintAndShade", 12));
    static constexpr MemberTable table("Font", rows);
    return table;
}

}  // namespace kestrune::host
