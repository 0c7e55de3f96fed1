#include "host/xlsx/ThemePart.h"

#include <algorithm>
#include <array>

#include "host/xlsx/ColorXml.h"
#include "host/xlsx/XmlElement.h"
#include "host/xlsx/XmlParser.h"

namespace kestrune::host {
namespace {

// In the order of theme numbers in cell formats, which is not quite the order of the part.
constexpr auto color_names =
    std::to_array<std::string_view>({"lt1", "dk1", "lt2", "dk2", "accent1", "accent2", "accent3", "accent4", "accent5",
                                     "accent6", "hlink", "folHlink"});

void read_colors(const XmlElement& scheme, Theme& theme) {
    for (auto slot = scheme.first_child(); slot; slot = slot.next()) {
        const auto name = std::find(color_names.begin(), color_names.end(), slot.local());
        const auto color = slot.first_child();
        if (name == color_names.end() || !color) continue;
        // A colour of the system's comes with what it was when the file was written.
        const auto rgb = color.local() == "sysClr" ? color.value("lastClr") : color.value("val");
        if (rgb.size() == 6) theme.colors[static_cast<std::size_t>(name - color_names.begin())] = parse_argb(rgb);
    }
}

void read_font(const XmlElement& fonts, std::string_view name, std::string& font) {
    const auto element = fonts.child(name);
    const auto latin = element ? element.child("latin") : XmlElement();
    if (latin && !latin.value("typeface").empty()) font = latin.value("typeface");
}

}  // namespace

Theme read_theme(const Package& package, const std::string& part) {
    const XmlText xml = package.read_xml(part, std::uint64_t{64} << 20);
    check_xml(package, part, xml.text, {});
    Theme theme = Theme::office();
    const auto elements = XmlElement::root(xml.text).child("themeElements");
    if (!elements) return theme;
    if (const auto scheme = elements.child("clrScheme")) read_colors(scheme, theme);
    if (const auto fonts = elements.child("fontScheme")) {
        read_font(fonts, "majorFont", theme.major_font);
        read_font(fonts, "minorFont", theme.minor_font);
    }
    return theme;
}

}  // namespace kestrune::host
