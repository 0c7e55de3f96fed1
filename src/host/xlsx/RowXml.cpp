#include "host/xlsx/RowXml.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "host/xlsx/CellXml.h"

namespace kestrune::host {
namespace {

template <class Number>
Number parsed(std::string_view text, Number fallback) {
    Number value{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    return fault == std::errc{} && end == text.data() + text.size() ? value : fallback;
}

std::string height_text(const RowFormat& format) {
    std::string text;
    append_number(text, format.height);
    return text;
}

}  // namespace

void RowXml::read(RowFormat& format, std::string_view name, std::string_view value) const {
    if (name == "s") {
        const auto style = parsed<StyleId>(value, 0);
        format.style = style < formats ? style : 0;
        if (named != nullptr) *named = std::max(*named, style + 1);
    } else if (name == "ht") {
        format.height = parsed<double>(value, -1);
    } else if (name == "customFormat") {
        format.has_style = xml_flag(value);
    } else if (name == "customHeight") {
        format.custom_height = xml_flag(value);
    } else if (name == "hidden") {
        format.hidden = xml_flag(value);
    } else if (name == "collapsed") {
        format.collapsed = xml_flag(value);
    } else if (name == "outlineLevel") {
        format.outline_level = static_cast<std::uint8_t>(std::clamp(parsed<int>(value, 0), 0, 7));
    }
}

void RowXml::finish(RowFormat& format) const {
    if (!format.has_style) format.style = 0;
    if (!format.custom_height && format.height == default_height) format.height = -1;
    if (!(format.height >= 0)) format.height = -1;
}

RowFormat RowXml::read(const XmlElement& row) const {
    RowFormat format;
    for (auto attribute = row.first_attribute(); attribute; attribute = row.attribute_after(attribute))
        read(format, attribute.name, attribute.raw);
    finish(format);
    return format;
}

void RowXml::append(std::string& out, const RowFormat& format) {
    if (format.has_style) out.append(" s=\"").append(std::to_string(format.style)).append("\" customFormat=\"1\"");
    if (format.height >= 0) out.append(" ht=\"").append(height_text(format)).append("\"");
    if (format.hidden) out += " hidden=\"1\"";
    if (format.custom_height) out += " customHeight=\"1\"";
    if (format.outline_level != 0)
        out.append(" outlineLevel=\"").append(std::to_string(format.outline_level)).append("\"");
    if (format.collapsed) out += " collapsed=\"1\"";
}

void RowXml::edit(TextEdits& edits, const XmlElement& row, const RowFormat& format) const {
    const RowFormat was = read(row);
    const auto set = [&](std::string_view name, bool changed, bool present, const std::string& value) {
        if (changed) edits.set_attribute(row, name, present ? std::optional<std::string_view>(value) : std::nullopt);
    };
    const bool style = was.has_style != format.has_style || (format.has_style && was.style != format.style);
    set("s", style, format.has_style, std::to_string(format.style));
    set("customFormat", was.has_style != format.has_style, format.has_style, "1");
    set("ht", was.height != format.height && (was.height >= 0 || format.height >= 0), format.height >= 0,
        format.height >= 0 ? height_text(format) : std::string());
    set("hidden", was.hidden != format.hidden, format.hidden, "1");
    set("customHeight", was.custom_height != format.custom_height, format.custom_height, "1");
    set("outlineLevel", was.outline_level != format.outline_level, format.outline_level != 0,
        std::to_string(format.outline_level));
    set("collapsed", was.collapsed != format.collapsed, format.collapsed, "1");
}

}  // namespace kestrune::host
