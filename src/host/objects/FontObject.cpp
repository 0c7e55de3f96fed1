#include "host/objects/FontObject.h"

#include <cmath>

#include "automation/Text.h"
#include "host/objects/Colors.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"
#include "host/objects/Underlines.h"

namespace kestrune::host {
namespace {

constexpr std::size_t longest_name = 31;  // characters of a font's name

struct FontStyle {
    std::string_view text;
    bool bold;
    bool italic;
};
constexpr FontStyle font_styles[] = {
    {"Regular", false, false}, {"Bold", true, false}, {"Italic", false, true}, {"Bold Italic", true, true}};

}  // namespace

ObjectRef FontObject::parent() const { return std::make_shared<RangeObject>(cells_); }

Value FontObject::name() const {
    return read([](const Font& font) { return font.name; });
}

void FontObject::set_name(const std::string& name) {
    if (name.empty() || name.size() > longest_name) refuse("Font.Name", "a font's name has 1 to 31 characters");
    write("Font.Name", [&](Font& font) {
        if (font.name == name) return;
        font.name = name;
        // What the file said about the other face no longer holds.
        font.scheme.clear();
        font.family = -1;
        font.charset = -1;
    });
}

Value FontObject::size() const {
    return read([](const Font& font) { return font.size; });
}

void FontObject::set_size(double points) {
    if (!(points >= 1 && points <= 409)) refuse("Font.Size", "a font's size is 1 to 409 points");
    write("Font.Size", [&](Font& font) { font.size = points; });
}

Value FontObject::bold() const {
    return read([](const Font& font) { return font.bold; });
}

void FontObject::set_bold(bool on) {
    write("Font.Bold", [&](Font& font) { font.bold = on; });
}

Value FontObject::italic() const {
    return read([](const Font& font) { return font.italic; });
}

void FontObject::set_italic(bool on) {
    write("Font.Italic", [&](Font& font) { font.italic = on; });
}

Value FontObject::font_style() const {
    return read([](const Font& font) {
        std::string_view text;
        for (const FontStyle& style : font_styles) {
            if (style.bold == font.bold && style.italic == font.italic) text = style.text;
        }
        return text;
    });
}

void FontObject::set_font_style(const std::string& style) {
    for (const FontStyle& known : font_styles) {
        if (!automation::same_text(known.text, style)) continue;
        write("Font.FontStyle", [&](Font& font) {
            font.bold = known.bold;
            font.italic = known.italic;
        });
        return;
    }
    refuse("Font.FontStyle", "there is no font style '" + style + "'");
}

Value FontObject::strikethrough() const {
    return read([](const Font& font) { return font.strike; });
}

void FontObject::set_strikethrough(bool on) {
    write("Font.Strikethrough", [&](Font& font) { font.strike = on; });
}

Value FontObject::subscript() const {
    return read([](const Font& font) { return font.vertical == VerticalRun::Subscript; });
}

void FontObject::set_subscript(bool on) {
    write("Font.Subscript", [&](Font& font) {
        if (on) {
            font.vertical = VerticalRun::Subscript;
        } else if (font.vertical == VerticalRun::Subscript) {
            font.vertical = VerticalRun::Baseline;
        }
    });
}

Value FontObject::superscript() const {
    return read([](const Font& font) { return font.vertical == VerticalRun::Superscript; });
}

void FontObject::set_superscript(bool on) {
    write("Font.Superscript", [&](Font& font) {
        if (on) {
            font.vertical = VerticalRun::Superscript;
        } else if (font.vertical == VerticalRun::Superscript) {
            font.vertical = VerticalRun::Baseline;
        }
    });
}

Value FontObject::underline() const {
    return read([](const Font& font) { return underline_constant(font.underline); });
}

void FontObject::set_underline(const Value& style) {
    const Underline underline = underline_of("Font.Underline", style);
    write("Font.Underline", [&](Font& font) { font.underline = underline; });
}

Value FontObject::color() const {
    return read([&](const Font& font) { return color_value(cells_.workbook(), font.color, 0); });
}

void FontObject::set_color(std::int32_t bgr) {
    write("Font.Color", [&](Font& font) { font.color = color_of_value(bgr); });
}

Value FontObject::color_index() const {
    return read([&](const Font& font) { return host::color_index(cells_.workbook(), font.color); });
}

void FontObject::set_color_index(std::int32_t index) {
    const Color color = color_of_index("Font.ColorIndex", index);
    write("Font.ColorIndex", [&](Font& font) { font.color = color; });
}

Value FontObject::theme_color() const {
    return themed("Font.ThemeColor", read([](const Font& font) { return host::theme_color(font.color); }));
}

void FontObject::set_theme_color(std::int32_t color) {
    const Color stored = color_of_theme("Font.ThemeColor", color);
    write("Font.ThemeColor", [&](Font& font) { font.color = stored; });
}

Value FontObject::theme_font() const {
    return read([](const Font& font) {
        if (font.scheme == "major") return xlThemeFontMajor;
        return font.scheme == "minor" ? xlThemeFontMinor : xlThemeFontNone;
    });
}

void FontObject::set_theme_font(std::int32_t font) {
    if (font < xlThemeFontNone || font > xlThemeFontMajor) refuse("Font.ThemeFont", "there is no such theme font");
    const Theme& theme = cells_.workbook().theme;
    write("Font.ThemeFont", [&](Font& changed) {
        changed.scheme.clear();
        if (font == xlThemeFontNone) return;
        changed.scheme = font == xlThemeFontMajor ? "major" : "minor";
        changed.name = font == xlThemeFontMajor ? theme.major_font : theme.minor_font;
    });
}

Value FontObject::tint_and_shade() const {
    return read([](const Font& font) { return font.color.tint; });
}

void FontObject::set_tint_and_shade(double tint) {
    const double checked = checked_tint("Font.TintAndShade", tint);
    write("Font.TintAndShade", [&](Font& font) { font.color.tint = checked; });
}

const MemberTable& FontObject::members() {
    using F = FontObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&F::application>("Application", 1), read_only<&F::parent>("Parent", 2),
        property<&F::name, &F::set_name>("Name", 3), property<&F::size, &F::set_size>("Size", 4),
        property<&F::bold, &F::set_bold>("Bold", 5), property<&F::italic, &F::set_italic>("Italic", 6),
        property<&F::font_style, &F::set_font_style>("FontStyle", 7),
        property<&F::strikethrough, &F::set_strikethrough>("Strikethrough", 8),
        property<&F::subscript, &F::set_subscript>("Subscript", 9),
        property<&F::superscript, &F::set_superscript>("Superscript", 10),
        property<&F::underline, &F::set_underline>("Underline", 11), property<&F::color, &F::set_color>("Color", 12),
        property<&F::color_index, &F::set_color_index>("ColorIndex", 13),
        property<&F::theme_color, &F::set_theme_color>("ThemeColor", 14),
        property<&F::theme_font, &F::set_theme_font>("ThemeFont", 15),
        property<&F::tint_and_shade, &F::set_tint_and_shade>("TintAndShade", 16));
    static constexpr MemberTable table("Font", rows);
    return table;
}

}  // namespace kestrune::host
