#include "host/objects/InteriorObject.h"

#include "host/objects/Colors.h"
#include "host/objects/Patterns.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

constexpr std::uint32_t white = 0xFFFFFF;

bool unfilled(const Fill& fill) { return fill.pattern == Pattern::None && fill.gradient.empty(); }

}  // namespace

ObjectRef InteriorObject::parent() const { return std::make_shared<RangeObject>(cells_); }

Value InteriorObject::color() const {
    return read([&](const Fill& fill) -> Value {
        if (!fill.gradient.empty()) return Null{};
        if (unfilled(fill)) return static_cast<double>(white);
        return color_value(cells_.workbook(), cell_color(fill), white);
    });
}

void InteriorObject::set_color(std::int32_t bgr) {
    write("Interior.Color", [&](Fill& fill) { set_cell_color(fill, color_of_value(bgr)); });
}

Value InteriorObject::color_index() const {
    return read([&](const Fill& fill) -> Value {
        if (!fill.gradient.empty()) return Null{};
        if (unfilled(fill)) return xlNone;
        return host::color_index(cells_.workbook(), cell_color(fill));
    });
}

void InteriorObject::set_color_index(std::int32_t index) {
    if (index == xlNone || index == 0) {
        write("Interior.ColorIndex", [](Fill& fill) { fill = Fill{}; });
        return;
    }
    const Color color = color_of_index("Interior.ColorIndex", index);
    write("Interior.ColorIndex", [&](Fill& fill) { set_cell_color(fill, color); });
}

Value InteriorObject::theme_color() const {
    return themed("Interior.ThemeColor", read([](const Fill& fill) {
                      return unfilled(fill) ? Value() : host::theme_color(cell_color(fill));
                  }));
}

void InteriorObject::set_theme_color(std::int32_t color) {
    const Color stored = color_of_theme("Interior.ThemeColor", color);
    write("Interior.ThemeColor", [&](Fill& fill) { set_cell_color(fill, stored); });
}

Value InteriorObject::tint_and_shade() const {
    return read([](const Fill& fill) { return unfilled(fill) ? 0.0 : cell_color(fill).tint; });
}

void InteriorObject::set_tint_and_shade(double tint) {
    const double checked = checked_tint("Interior.TintAndShade", tint);
    write("Interior.TintAndShade", [&](Fill& fill) {
        if (unfilled(fill)) return;
        Color color = cell_color(fill);
        color.tint = checked;
        set_cell_color(fill, color);
    });
}

Value InteriorObject::pattern() const {
    return read([](const Fill& fill) { return pattern_constant(fill); });
}

void InteriorObject::set_pattern(std::int32_t pattern) {
    const Pattern wanted = pattern_of("Interior.Pattern", pattern);
    write("Interior.Pattern", [&](Fill& fill) { change_pattern(fill, wanted); });
}

Value InteriorObject::pattern_color() const {
    return read([&](const Fill& fill) { return color_value(cells_.workbook(), line_color(fill), 0); });
}

void InteriorObject::set_pattern_color(std::int32_t bgr) {
    write("Interior.PatternColor", [&](Fill& fill) { set_line_color(fill, color_of_value(bgr)); });
}

Value InteriorObject::pattern_color_index() const {
    return read([&](const Fill& fill) -> Value {
        if (unfilled(fill)) return xlNone;
        return host::color_index(cells_.workbook(), line_color(fill));
    });
}

void InteriorObject::set_pattern_color_index(std::int32_t index) {
    const Color color = color_of_index("Interior.PatternColorIndex", index);
    write("Interior.PatternColorIndex", [&](Fill& fill) { set_line_color(fill, color); });
}

Value InteriorObject::pattern_theme_color() const {
    return themed("Interior.PatternThemeColor",
                  read([](const Fill& fill) { return host::theme_color(line_color(fill)); }));
}

void InteriorObject::set_pattern_theme_color(std::int32_t color) {
    const Color stored = color_of_theme("Interior.PatternThemeColor", color);
    write("Interior.PatternThemeColor", [&](Fill& fill) { set_line_color(fill, stored); });
}

Value InteriorObject::pattern_tint_and_shade() const {
    return read([](const Fill& fill) { return line_color(fill).tint; });
}

void InteriorObject::set_pattern_tint_and_shade(double tint) {
    const double checked = checked_tint("Interior.PatternTintAndShade", tint);
    write("Interior.PatternTintAndShade", [&](Fill& fill) {
        Color color = line_color(fill);
        color.tint = checked;
        set_line_color(fill, color);
    });
}

const MemberTable& InteriorObject::members() {
    using I = InteriorObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&I::application>("Application", 1), read_only<&I::parent>("Parent", 2),
        property<&I::color, &I::set_color>("Color", 3), property<&I::color_index, &I::set_color_index>("ColorIndex", 4),
        property<&I::theme_color, &I::set_theme_color>("ThemeColor", 5),
        property<&I::tint_and_shade, &I::set_tint_and_shade>("TintAndShade", 6),
        property<&I::pattern, &I::set_pattern>("Pattern", 7),
        property<&I::pattern_color, &I::set_pattern_color>("PatternColor", 8),
        property<&I::pattern_color_index, &I::set_pattern_color_index>("PatternColorIndex", 9),
        property<&I::pattern_theme_color, &I::set_pattern_theme_color>("PatternThemeColor", 10),
        property<&I::pattern_tint_and_shade, &I::set_pattern_tint_and_shade>("PatternTintAndShade", 11));
    static constexpr MemberTable table("Interior", rows);
    return table;
}

}  // namespace kestrune::host
