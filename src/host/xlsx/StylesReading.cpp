#include <algorithm>

#include "host/xlsx/ColorXml.h"
#include "host/xlsx/FormatXml.h"
#include "host/xlsx/StylesPart.h"
#include "host/xlsx/XmlParser.h"
#include "number_format/FormatSpelling.h"

namespace kestrune::host {

using number_format::object_model_spelling;
namespace {

// Calls read with every child of that name, and answers how many there were.
template <class Read>
std::uint32_t each(const XmlElement& list, std::string_view name, Read&& read) {
    std::uint32_t count = 0;
    if (!list) return count;
    for (auto child = list.first_child(); child; child = child.next()) {
        if (child.local() != name) continue;
        read(child);
        ++count;
    }
    return count;
}

void read_number_formats(const XmlElement& list, StyleTable& styles, StylesLayout& layout) {
    each(list, "numFmt", [&](const XmlElement& element) {
        const auto number = element.integer("numFmtId", -1);
        if (number < 0 || number > 0x7FFFFFFF) return;
        styles.load_number_format(static_cast<std::uint32_t>(number),
                                  object_model_spelling(element.value("formatCode")));
        layout.number_formats.push_back(static_cast<std::uint32_t>(number));
    });
    std::sort(layout.number_formats.begin(), layout.number_formats.end());
}

// Only the pieces that exist; there is at least one of each.
CellFormat checked(CellFormat format, StyleTable& styles, StylesLayout& layout) {
    layout.named_fonts = std::max(layout.named_fonts, format.font + 1);
    layout.named_fills = std::max(layout.named_fills, format.fill + 1);
    layout.named_borders = std::max(layout.named_borders, format.border + 1);
    if (!styles.custom_number_formats().contains(format.number_format))
        styles.reserve_number_format(format.number_format);
    if (format.font >= styles.fonts.size()) format.font = 0;
    if (format.fill >= styles.fills.size()) format.fill = 0;
    if (format.border >= styles.borders.size()) format.border = 0;
    return format;
}

void read_named_styles(const XmlElement& root, StyleTable& styles, StylesLayout& layout) {
    layout.named_styles = each(root.child("cellStyleXfs"), "xf", [&](const XmlElement& element) {
        styles.named_styles.push_back({{}, checked(read_cell_format(element), styles, layout)});
    });
    each(root.child("cellStyles"), "cellStyle", [&](const XmlElement& element) {
        const auto position = element.integer("xfId", -1);
        if (position < 0 || position >= static_cast<std::int64_t>(styles.named_styles.size())) return;
        auto& style = styles.named_styles[static_cast<std::size_t>(position)];
        if (style.name.empty()) style.name = element.value("name");
    });
}

// The first eight entries repeat the next eight; Workbook.Colors begins with the ninth.
void read_palette(const XmlElement& colors, Workbook& book) {
    if (!colors) return;
    std::size_t position = 0;
    each(colors.child("indexedColors"), "rgbColor", [&](const XmlElement& element) {
        if (position >= 8 && position - 8 < book.palette.size())
            book.palette[position - 8] = parse_argb(element.value("rgb"));
        ++position;
    });
}

}  // namespace

StylesLayout read_styles(const Package& package, const std::string& part, Workbook& book) {
    const XmlText xml = package.read_xml(part, std::uint64_t{256} << 20);
    check_xml(package, part, xml.text, "styleSheet");
    const auto root = XmlElement::root(xml.text);
    const StyleTable defaults = StyleTable::defaults();
    StyleTable& styles = book.styles;
    styles = StyleTable();
    StylesLayout layout;
    read_number_formats(root.child("numFmts"), styles, layout);
    layout.fonts = each(root.child("fonts"), "font", [&](const XmlElement& e) { styles.fonts.append(read_font(e)); });
    layout.fills = each(root.child("fills"), "fill", [&](const XmlElement& e) { styles.fills.append(read_fill(e)); });
    layout.borders =
        each(root.child("borders"), "border", [&](const XmlElement& e) { styles.borders.append(read_border(e)); });
    // What a list lacks altogether is added to the file as soon as it is saved with a change.
    for (std::uint32_t i = 0; layout.fonts == 0 && i < defaults.fonts.size(); ++i)
        styles.fonts.append(defaults.fonts[i]);
    for (std::uint32_t i = 0; layout.fills == 0 && i < defaults.fills.size(); ++i)
        styles.fills.append(defaults.fills[i]);
    for (std::uint32_t i = 0; layout.borders == 0 && i < defaults.borders.size(); ++i)
        styles.borders.append(defaults.borders[i]);
    read_named_styles(root, styles, layout);
    if (layout.named_styles == 0) styles.named_styles = defaults.named_styles;
    layout.formats = each(root.child("cellXfs"), "xf", [&](const XmlElement& e) {
        CellFormat format = checked(read_cell_format(e), styles, layout);
        if (format.named_style >= styles.named_styles.size()) format.named_style = 0;
        styles.formats.append(format);
    });
    if (layout.formats == 0) styles.formats.append(CellFormat());
    styles.formats_in_file = styles.formats.size();
    layout.differentials = each(root.child("dxfs"), "dxf",
                                [&](const XmlElement& e) { styles.differentials.append(read_differential(e)); });
    read_palette(root.child("colors"), book);
    return layout;
}

}  // namespace kestrune::host
