#include <algorithm>

#include "host/xlsx/ColorXml.h"
#include "host/xlsx/FormatNames.h"
#include "host/xlsx/FormatXml.h"
#include "number_format/FormatSpelling.h"

namespace kestrune::host {

using number_format::object_model_spelling;
namespace {

std::uint32_t number(const XmlElement& element, std::string_view name) {
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(element.integer(name), 0, 0x7FFFFFFF));
}

std::int32_t small(const XmlElement& element, std::string_view name, std::int64_t fallback = 0) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(element.integer(name, fallback), -32768, 32767));
}

// <b/> is on, <b val="0"/> is off.
bool on(const XmlElement& element) { return element.flag("val", true); }

Underline underline_of(const XmlElement& element) {
    if (!element.attribute("val")) return Underline::Single;
    return enumerator(underline_names, element.value("val"), Underline::None);
}

// Takes over one child of <font>; false for one that is unknown.
bool read_font_child(Font& font, const XmlElement& child) {
    const auto local = child.local();
    if (local == "name" || local == "rFont") {
        font.name = child.value("val");
    } else if (local == "sz") {
        font.size = child.number("val", font.size);
    } else if (local == "b") {
        font.bold = on(child);
    } else if (local == "i") {
        font.italic = on(child);
    } else if (local == "strike") {
        font.strike = on(child);
    } else if (local == "outline") {
        font.outline = on(child);
    } else if (local == "shadow") {
        font.shadow = on(child);
    } else if (local == "condense") {
        font.condense = on(child);
    } else if (local == "extend") {
        font.extend = on(child);
    } else if (local == "u") {
        font.underline = underline_of(child);
    } else if (local == "vertAlign") {
        font.vertical = enumerator(vertical_run_names, child.value("val"), VerticalRun::Baseline);
    } else if (local == "color") {
        font.color = read_color(child);
    } else if (local == "family") {
        font.family = small(child, "val", -1);
    } else if (local == "charset") {
        font.charset = small(child, "val", -1);
    } else if (local == "scheme") {
        font.scheme = child.value("val");
        if (font.scheme == "none") font.scheme.clear();
    } else {
        return false;
    }
    return true;
}

Line read_line(const XmlElement& element) {
    Line line;
    line.style = enumerator(line_names, element.value("style"), LineStyle::None);
    line.color = read_color(element.child("color"));
    return line;
}

Alignment read_alignment(const XmlElement& element) {
    Alignment alignment;
    alignment.horizontal = enumerator(horizontal_names, element.value("horizontal"), Horizontal::General);
    alignment.vertical = enumerator(vertical_names, element.value("vertical"), Vertical::Bottom);
    const auto rotation = small(element, "textRotation");
    alignment.rotation = (rotation >= 0 && rotation <= 180) || rotation == 255 ? rotation : 0;
    alignment.indent = std::max(small(element, "indent"), 0);
    alignment.relative_indent = small(element, "relativeIndent");
    alignment.reading_order = small(element, "readingOrder");
    alignment.wrap = element.flag("wrapText");
    alignment.shrink = element.flag("shrinkToFit");
    alignment.justify_last_line = element.flag("justifyLastLine");
    return alignment;
}

}  // namespace

Font read_font(const XmlElement& element) {
    Font font;
    font.name.clear();
    for (auto child = element.first_child(); child; child = child.next()) {
        if (!read_font_child(font, child)) font.extra += child.source();
    }
    if (font.name.empty()) font.name = Font().name;
    return font;
}

Fill read_fill(const XmlElement& element) {
    Fill fill;
    const auto child = element.first_child();
    if (!child) return fill;
    if (child.local() == "gradientFill") {
        fill.gradient = child.source();
        return fill;
    }
    fill.pattern = enumerator(pattern_names, child.value("patternType"), Pattern::None);
    fill.foreground = read_color(child.child("fgColor"));
    fill.background = read_color(child.child("bgColor"));
    return fill;
}

Border read_border(const XmlElement& element) {
    Border border;
    border.diagonal_up = element.flag("diagonalUp");
    border.diagonal_down = element.flag("diagonalDown");
    border.outline = element.flag("outline", true);
    for (auto child = element.first_child(); child; child = child.next()) {
        const auto local = child.local();
        if (local == "left" || local == "start") {
            border.left = read_line(child);
        } else if (local == "right" || local == "end") {
            border.right = read_line(child);
        } else if (local == "top") {
            border.top = read_line(child);
        } else if (local == "bottom") {
            border.bottom = read_line(child);
        } else if (local == "diagonal") {
            border.diagonal = read_line(child);
        } else {
            border.extra += child.source();
        }
    }
    return border;
}

CellFormat read_cell_format(const XmlElement& xf) {
    CellFormat format;
    format.number_format = number(xf, "numFmtId");
    format.font = number(xf, "fontId");
    format.fill = number(xf, "fillId");
    format.border = number(xf, "borderId");
    format.named_style = number(xf, "xfId");
    format.quote_prefix = xf.flag("quotePrefix");
    format.pivot_button = xf.flag("pivotButton");
    for (auto child = xf.first_child(); child; child = child.next()) {
        if (child.local() == "alignment") {
            format.alignment = read_alignment(child);
        } else if (child.local() == "protection") {
            format.protection.locked = child.flag("locked", true);
            format.protection.hidden = child.flag("hidden");
        } else {
            format.extra += child.source();
        }
    }
    return format;
}

DifferentialFormat read_differential(const XmlElement& dxf) {
    DifferentialFormat format;
    format.source = dxf.source();
    for (auto child = dxf.first_child(); child; child = child.next()) {
        if (child.local() == "font") {
            for (auto piece = child.first_child(); piece; piece = piece.next()) {
                const auto local = piece.local();
                if (local == "b") format.bold = on(piece);
                if (local == "i") format.italic = on(piece);
                if (local == "strike") format.strike = on(piece);
                if (local == "u") format.underline = underline_of(piece);
                if (local == "color") format.font_color = read_color(piece);
            }
        } else if (child.local() == "fill") {
            Fill fill = read_fill(child);
            // Without a pattern named, a differential fill is solid.
            const auto pattern = child.first_child();
            if (pattern && pattern.local() == "patternFill" && !pattern.attribute("patternType"))
                fill.pattern = Pattern::Solid;
            format.fill = fill;
        } else if (child.local() == "border") {
            format.border = read_border(child);
        } else if (child.local() == "numFmt") {
            format.number_format = object_model_spelling(child.value("formatCode"));
        }
    }
    return format;
}

}  // namespace kestrune::host
