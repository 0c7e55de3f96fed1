#include "host/objects/ConditionInteriorObject.h"

#include "host/objects/Colors.h"
#include "host/objects/FormatConditionObject.h"
#include "host/objects/Patterns.h"

namespace kestrune::host {
namespace {

// In a differential format a solid fill's colour stands in the background, and solid needs no name (ECMA-376
// 18.8.14); programs that do not know this look at the foreground.
const Color& condition_color(const Fill& fill) {
    const bool solid = fill.pattern == Pattern::None || fill.pattern == Pattern::Solid;
    return solid && fill.background.kind == Color::Kind::None ? fill.foreground : fill.background;
}

}  // namespace

ObjectRef ConditionInteriorObject::parent() const { return std::make_shared<FormatConditionObject>(rule_); }

Value ConditionInteriorObject::color() const {
    const auto fill = rule_.differential().fill;
    return fill ? color_value(rule_.workbook(), condition_color(*fill), 0xFFFFFF) : Value(Null{});
}

Value ConditionInteriorObject::color_index() const {
    const auto fill = rule_.differential().fill;
    return fill ? host::color_index(rule_.workbook(), condition_color(*fill)) : Value(Null{});
}

void ConditionInteriorObject::write_color(std::string_view member, const Color& color) const {
    rule_.change_differential(member, [&](DifferentialFormat& format) {
        Fill fill = format.fill.value_or(Fill{});
        fill.gradient.clear();
        if (fill.pattern == Pattern::None || fill.pattern == Pattern::Solid) {
            fill.pattern = Pattern::Solid;
            fill.foreground = color;
        }
        fill.background = color;
        format.fill = fill;
    });
}

void ConditionInteriorObject::set_color(std::int32_t bgr) { write_color("Interior.Color", color_of_value(bgr)); }

void ConditionInteriorObject::set_color_index(std::int32_t index) {
    if (index == xlNone || index == 0) {
        rule_.change_differential("Interior.ColorIndex", [](DifferentialFormat& format) { format.fill.reset(); });
        return;
    }
    write_color("Interior.ColorIndex", color_of_index("Interior.ColorIndex", index));
}

Value ConditionInteriorObject::pattern() const {
    const auto fill = rule_.differential().fill;
    if (!fill) return Null{};
    return fill->pattern == Pattern::None ? Value(xlSolid) : Value(pattern_constant(*fill));
}

void ConditionInteriorObject::set_pattern(std::int32_t pattern) {
    const Pattern wanted = pattern_of("Interior.Pattern", pattern);
    rule_.change_differential("Interior.Pattern", [&](DifferentialFormat& format) {
        if (wanted == Pattern::None) {
            format.fill.reset();
            return;
        }
        Fill fill = format.fill.value_or(Fill{});
        const Color color = condition_color(fill);
        fill.background = color;
        fill.foreground = wanted == Pattern::Solid ? color : Color::automatic();
        fill.pattern = wanted;
        format.fill = fill;
    });
}

Value ConditionInteriorObject::theme_color() const {
    const auto fill = rule_.differential().fill;
    return fill ? themed("Interior.ThemeColor", host::theme_color(condition_color(*fill))) : Value(Null{});
}

void ConditionInteriorObject::set_theme_color(std::int32_t color) {
    write_color("Interior.ThemeColor", color_of_theme("Interior.ThemeColor", color));
}

Value ConditionInteriorObject::tint_and_shade() const {
    const auto fill = rule_.differential().fill;
    return fill ? Value(condition_color(*fill).tint) : Value(Null{});
}

void ConditionInteriorObject::set_tint_and_shade(double tint) {
    const auto fill = rule_.differential().fill;
    if (!fill) return;
    Color color = condition_color(*fill);
    color.tint = checked_tint("Interior.TintAndShade", tint);
    write_color("Interior.TintAndShade", color);
}

Value ConditionInteriorObject::pattern_color() const {
    const auto fill = rule_.differential().fill;
    if (!fill || fill->pattern == Pattern::None || fill->pattern == Pattern::Solid) return Null{};
    return color_value(rule_.workbook(), fill->foreground, 0);
}

void ConditionInteriorObject::set_pattern_color(std::int32_t bgr) {
    rule_.change_differential("Interior.PatternColor", [&](DifferentialFormat& format) {
        if (format.fill) set_line_color(*format.fill, color_of_value(bgr));
    });
}

const MemberTable& ConditionInteriorObject::members() {
    using I = ConditionInteriorObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&I::application>("Application", 1), read_only<&I::parent>("Parent", 2),
        property<&I::color, &I::set_color>("Color", 3), property<&I::color_index, &I::set_color_index>("ColorIndex", 4),
        property<&I::pattern, &I::set_pattern>("Pattern", 5),
        property<&I::theme_color, &I::set_theme_color>("ThemeColor", 6),
        property<&I::tint_and_shade, &I::set_tint_and_shade>("TintAndShade", 7),
        property<&I::pattern_color, &I::set_pattern_color>("PatternColor", 8));
    static constexpr MemberTable table("Interior", rows);
    return table;
}

}  // namespace kestrune::host
