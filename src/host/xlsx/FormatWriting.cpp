#include "host/xlsx/CellXml.h"
#include "host/xlsx/ColorXml.h"
#include "host/xlsx/FormatNames.h"
#include "host/xlsx/FormatXml.h"
#include "host/xlsx/XmlCharacters.h"

namespace kestrune::host {
namespace {

// Writes one element after another under one prefix.
struct Writer {
    std::string& out;
    std::string_view prefix;

    void open(std::string_view name) const { out.append("<").append(prefix).append(name); }
    void close(std::string_view name) const { out.append("</").append(prefix).append(name).append(">"); }
    void attribute(std::string_view name, std::string_view value) const {
        out.append(" ").append(name).append("=\"");
        append_escaped_attribute(out, value);
        out += '"';
    }
    void attribute(std::string_view name, std::int64_t value) const { attribute(name, std::to_string(value)); }
    void attribute_unless(std::string_view name, std::int64_t value, std::int64_t usual) const {
        if (value != usual) attribute(name, value);
    }
    void value(std::string_view name, std::string_view text) const {
        open(name);
        attribute("val", text);
        out += "/>";
    }
    void mark(std::string_view name, bool present) const {
        if (!present) return;
        open(name);
        out += "/>";
    }
    void optional_mark(std::string_view name, const std::optional<bool>& state) const {
        if (state && *state) mark(name, true);
        if (state && !*state) value(name, "0");
    }
    void underline(Underline line) const {
        if (line == Underline::Single) {
            mark("u", true);
        } else {
            value("u", name_of(underline_names, line));
        }
    }
    void color(std::string_view name, const Color& what) const { append_color(out, prefix, name, what); }
    void line(std::string_view name, const Line& what) const {
        open(name);
        if (what.style == LineStyle::None) {
            out += "/>";
            return;
        }
        attribute("style", name_of(line_names, what.style));
        if (what.color.kind == Color::Kind::None) {
            out += "/>";
            return;
        }
        out += '>';
        color("color", what.color);
        close(name);
    }
};

// A differential fill keeps the colour of a solid one as its background (ECMA-376 18.8.32).
void append_pattern(const Writer& to, const Fill& fill, bool differential) {
    to.open("patternFill");
    const bool solid = fill.pattern == Pattern::Solid;
    if (!differential || !solid) to.attribute("patternType", name_of(pattern_names, fill.pattern));
    std::string colors;
    if (differential && solid && fill.background.kind == Color::Kind::None) {
        append_color(colors, to.prefix, "bgColor", fill.foreground);
    } else {
        append_color(colors, to.prefix, "fgColor", fill.foreground);
        append_color(colors, to.prefix, "bgColor", fill.background);
    }
    if (colors.empty()) {
        to.out += "/>";
        return;
    }
    to.out.append(">").append(colors);
    to.close("patternFill");
}

void append_alignment(const Writer& to, const Alignment& alignment) {
    to.open("alignment");
    if (alignment.horizontal != Horizontal::General)
        to.attribute("horizontal", name_of(horizontal_names, alignment.horizontal));
    if (alignment.vertical != Vertical::Bottom) to.attribute("vertical", name_of(vertical_names, alignment.vertical));
    to.attribute_unless("textRotation", alignment.rotation, 0);
    to.attribute_unless("wrapText", alignment.wrap ? 1 : 0, 0);
    to.attribute_unless("indent", alignment.indent, 0);
    to.attribute_unless("relativeIndent", alignment.relative_indent, 0);
    to.attribute_unless("justifyLastLine", alignment.justify_last_line ? 1 : 0, 0);
    to.attribute_unless("shrinkToFit", alignment.shrink ? 1 : 0, 0);
    to.attribute_unless("readingOrder", alignment.reading_order, 0);
    to.out += "/>";
}

void append_protection(const Writer& to, const Protection& protection) {
    to.open("protection");
    to.attribute_unless("locked", protection.locked ? 1 : 0, 1);
    to.attribute_unless("hidden", protection.hidden ? 1 : 0, 0);
    to.out += "/>";
}

}  // namespace

void append_font(std::string& out, std::string_view prefix, const Font& font) {
    const Writer to{out, prefix};
    to.open("font");
    out += '>';
    to.mark("b", font.bold);
    to.mark("i", font.italic);
    to.mark("strike", font.strike);
    to.mark("condense", font.condense);
    to.mark("extend", font.extend);
    to.mark("outline", font.outline);
    to.mark("shadow", font.shadow);
    if (font.underline != Underline::None) to.underline(font.underline);
    if (font.vertical != VerticalRun::Baseline) to.value("vertAlign", name_of(vertical_run_names, font.vertical));
    std::string size;
    append_number(size, font.size);
    to.value("sz", size);
    to.color("color", font.color);
    to.value("name", font.name);
    if (font.family >= 0) to.value("family", std::to_string(font.family));
    if (font.charset >= 0) to.value("charset", std::to_string(font.charset));
    if (!font.scheme.empty()) to.value("scheme", font.scheme);
    out += font.extra;
    to.close("font");
}

void append_fill(std::string& out, std::string_view prefix, const Fill& fill) {
    const Writer to{out, prefix};
    to.open("fill");
    out += '>';
    if (fill.gradient.empty()) {
        append_pattern(to, fill, false);
    } else {
        out += fill.gradient;
    }
    to.close("fill");
}

void append_border(std::string& out, std::string_view prefix, const Border& border) {
    const Writer to{out, prefix};
    to.open("border");
    to.attribute_unless("diagonalUp", border.diagonal_up ? 1 : 0, 0);
    to.attribute_unless("diagonalDown", border.diagonal_down ? 1 : 0, 0);
    to.attribute_unless("outline", border.outline ? 1 : 0, 1);
    out += '>';
    to.line("left", border.left);
    to.line("right", border.right);
    to.line("top", border.top);
    to.line("bottom", border.bottom);
    to.line("diagonal", border.diagonal);
    out += border.extra;
    to.close("border");
}

void append_cell_format(std::string& out, std::string_view prefix, const CellFormat& format, const CellFormat& parent) {
    const Writer to{out, prefix};
    to.open("xf");
    to.attribute("numFmtId", format.number_format);
    to.attribute("fontId", format.font);
    to.attribute("fillId", format.fill);
    to.attribute("borderId", format.border);
    to.attribute("xfId", format.named_style);
    to.attribute_unless("quotePrefix", format.quote_prefix ? 1 : 0, 0);
    to.attribute_unless("pivotButton", format.pivot_button ? 1 : 0, 0);
    to.attribute_unless("applyNumberFormat", format.number_format != parent.number_format ? 1 : 0, 0);
    to.attribute_unless("applyFont", format.font != parent.font ? 1 : 0, 0);
    to.attribute_unless("applyFill", format.fill != parent.fill ? 1 : 0, 0);
    to.attribute_unless("applyBorder", format.border != parent.border ? 1 : 0, 0);
    const bool alignment = format.alignment != Alignment() || parent.alignment != Alignment();
    const bool protection = format.protection != Protection() || parent.protection != Protection();
    to.attribute_unless("applyAlignment", format.alignment != parent.alignment ? 1 : 0, 0);
    to.attribute_unless("applyProtection", format.protection != parent.protection ? 1 : 0, 0);
    if (!alignment && !protection && format.extra.empty()) {
        out += "/>";
        return;
    }
    out += '>';
    if (alignment) append_alignment(to, format.alignment);
    if (protection) append_protection(to, format.protection);
    out += format.extra;
    to.close("xf");
}

void append_differential(std::string& out, std::string_view prefix, const DifferentialFormat& format,
                         std::uint32_t number_format) {
    if (!format.source.empty()) {
        out += format.source;
        return;
    }
    const Writer to{out, prefix};
    to.open("dxf");
    out += '>';
    if (format.bold || format.italic || format.strike || format.underline || format.font_color) {
        to.open("font");
        out += '>';
        to.optional_mark("b", format.bold);
        to.optional_mark("i", format.italic);
        to.optional_mark("strike", format.strike);
        if (format.underline) to.underline(*format.underline);
        if (format.font_color) to.color("color", *format.font_color);
        to.close("font");
    }
    if (format.number_format) {
        to.open("numFmt");
        to.attribute("numFmtId", number_format);
        to.attribute("formatCode", *format.number_format);
        out += "/>";
    }
    if (format.fill) {
        to.open("fill");
        out += '>';
        append_pattern(to, *format.fill, true);
        to.close("fill");
    }
    if (format.border) append_border(out, prefix, *format.border);
    to.close("dxf");
}

}  // namespace kestrune::host
