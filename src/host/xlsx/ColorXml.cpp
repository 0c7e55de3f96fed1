#include "host/xlsx/ColorXml.h"

#include <fmt/format.h>

#include <charconv>

#include "host/xlsx/CellXml.h"

namespace kestrune::host {

std::uint32_t parse_argb(std::string_view text) {
    if (text.size() > 6) text.remove_prefix(text.size() - 6);
    std::uint32_t rgb = 0;
    std::from_chars(text.data(), text.data() + text.size(), rgb, 16);
    return ((rgb & 0xFF) << 16) | (rgb & 0xFF00) | (rgb >> 16);
}

std::string argb_text(std::uint32_t bgr) {
    return fmt::format("FF{:02X}{:02X}{:02X}", bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

Color read_color(const XmlElement& element) {
    Color color;
    if (!element) return color;
    if (const auto rgb = element.attribute("rgb")) {
        color = Color::rgb(parse_argb(rgb->raw));
    } else if (element.attribute("theme")) {
        color = Color::theme(static_cast<std::uint32_t>(element.integer("theme")));
    } else if (element.attribute("indexed")) {
        color = Color::indexed(static_cast<std::uint32_t>(element.integer("indexed")));
    } else if (element.flag("auto")) {
        color = Color::automatic();
    }
    if (color.kind != Color::Kind::None) color.tint = element.number("tint");
    return color;
}

void append_color(std::string& out, std::string_view prefix, std::string_view name, const Color& color) {
    if (color.kind == Color::Kind::None) return;
    out.append("<").append(prefix).append(name);
    switch (color.kind) {
        case Color::Kind::Automatic:
            out += " auto=\"1\"";
            break;
        case Color::Kind::Rgb:
            out.append(" rgb=\"").append(argb_text(color.value)).append("\"");
            break;
        case Color::Kind::Theme:
            out.append(" theme=\"").append(std::to_string(color.value)).append("\"");
            break;
        case Color::Kind::Indexed:
            out.append(" indexed=\"").append(std::to_string(color.value)).append("\"");
            break;
        case Color::Kind::None:
            break;
    }
    if (color.tint != 0) {
        out += " tint=\"";
        append_number(out, color.tint);
        out += '"';
    }
    out += "/>";
}

}  // namespace kestrune::host
