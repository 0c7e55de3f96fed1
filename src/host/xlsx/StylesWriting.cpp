#include <algorithm>
#include <array>

#include "host/xlsx/ColorXml.h"
#include "host/xlsx/FormatXml.h"
#include "host/xlsx/SheetLayout.h"
#include "host/xlsx/StylesPart.h"
#include "host/xlsx/XmlCharacters.h"
#include "host/xlsx/XmlParser.h"

namespace kestrune::host {
namespace {

int styles_order(std::string_view local_name) {
    static constexpr auto order =
        std::to_array<std::string_view>({"numFmts", "fonts", "fills", "borders", "cellStyleXfs", "cellXfs",
                                         "cellStyles", "dxfs", "tableStyles", "colors", "extLst"});
    const auto found = std::find(order.begin(), order.end(), local_name);
    return found == order.end() ? -1 : static_cast<int>(found - order.begin());
}

class StylesWriter {
  public:
    StylesWriter(std::string_view text, const Workbook& book) : root_(XmlElement::root(text)), book_(book) {}

    // Adds `count` entries to a list, making it when the file has none.
    void extend(std::string_view list, std::string_view entries, std::size_t count) {
        if (count == 0) return;
        const auto element = root_.child(list);
        if (!element) {
            std::string source("<");
            source.append(root_.prefix()).append(list).append(" count=\"").append(std::to_string(count)).append("\">");
            source.append(entries).append("</").append(root_.prefix()).append(list).append(">");
            insert_child(edits_, root_, list, source, styles_order);
            return;
        }
        edits_.append_content(element, entries);
        if (!element.attribute("count")) return;
        std::size_t before = 0;
        for (auto child = element.first_child(); child; child = child.next()) ++before;
        edits_.set_attribute(element, "count", std::to_string(before + count));
    }

    template <class List, class Append>
    void extend(std::string_view name, const List& list, std::size_t loaded, Append&& append) {
        std::string entries;
        for (std::size_t i = loaded; i < list.size(); ++i)
            append(entries, root_.prefix(), list[static_cast<std::uint32_t>(i)]);
        extend(name, entries, list.size() - std::min<std::size_t>(loaded, list.size()));
    }

    void extend_number_formats(const std::vector<std::uint32_t>& loaded) {
        std::vector<std::uint32_t> numbers;
        for (const auto& [number, code] : book_.styles.custom_number_formats()) {
            if (!std::binary_search(loaded.begin(), loaded.end(), number)) numbers.push_back(number);
        }
        std::sort(numbers.begin(), numbers.end());
        std::string entries;
        for (const auto number : numbers) {
            entries.append("<").append(root_.prefix()).append("numFmt numFmtId=\"").append(std::to_string(number));
            entries.append("\" formatCode=\"");
            append_escaped_attribute(entries, book_.styles.number_format(number));
            entries += "\"/>";
        }
        extend("numFmts", entries, numbers.size());
    }

    void extend_named_styles(std::size_t loaded) {
        const auto& styles = book_.styles.named_styles;
        std::string formats;
        std::string names;
        for (std::size_t i = loaded; i < styles.size(); ++i) {
            append_cell_format(formats, root_.prefix(), styles[i].format, styles[i].format);
            names.append("<").append(root_.prefix()).append("cellStyle name=\"");
            append_escaped_attribute(names, styles[i].name);
            names.append("\" xfId=\"").append(std::to_string(i));
            names += styles[i].name == "Normal" ? "\" builtinId=\"0\"/>" : "\"/>";
        }
        const auto count = styles.size() - std::min(loaded, styles.size());
        // A named style's own format belongs to no other.
        for (auto at = formats.find(" xfId=\""); at != std::string::npos; at = formats.find(" xfId=\"", at))
            formats.erase(at, formats.find('"', at + 7) + 1 - at);
        extend("cellStyleXfs", formats, count);
        extend("cellStyles", names, count);
    }

    void write_palette() {
        std::string entries;
        const auto colors = root_.child("colors");
        const auto list = colors ? colors.child("indexedColors") : XmlElement();
        auto old = list ? list.first_child() : XmlElement();
        for (std::size_t i = 0; i < 8; ++i) {
            if (old) {
                entries += old.source();
                old = old.next();
            } else {
                append_palette_entry(entries, default_palette()[i]);
            }
        }
        for (const auto color : book_.palette) append_palette_entry(entries, color);
        if (list) {
            edits_.set_content(list, entries);
            return;
        }
        std::string source("<");
        source.append(root_.prefix()).append("indexedColors>").append(entries);
        source.append("</").append(root_.prefix()).append("indexedColors>");
        if (colors) {
            if (colors.empty()) {
                edits_.append_content(colors, source);
            } else {
                edits_.insert(colors.tag_end(), source);
            }
            return;
        }
        std::string whole("<");
        whole.append(root_.prefix()).append("colors>").append(source);
        whole.append("</").append(root_.prefix()).append("colors>");
        insert_child(edits_, root_, "colors", whole, styles_order);
    }

    std::string apply() { return edits_.apply(root_.document()); }

  private:
    void append_palette_entry(std::string& out, std::uint32_t bgr) const {
        out.append("<").append(root_.prefix()).append("rgbColor rgb=\"00").append(argb_text(bgr).substr(2));
        out += "\"/>";
    }

    XmlElement root_;
    const Workbook& book_;
    TextEdits edits_;
};

}  // namespace

bool styles_changed(const Workbook& book, const StylesLayout& layout) {
    const StyleTable& styles = book.styles;
    // Pieces that no format uses are no reason to write.
    return styles.formats.size() > std::max<std::uint32_t>(layout.formats, 1) ||
           styles.differentials.size() > layout.differentials || book.palette_changed;
}

std::string write_styles(std::string text, Workbook& book, const StylesLayout& layout) {
    open_root(text);
    StyleTable& styles = book.styles;
    std::string differentials;
    const auto prefix = XmlElement::root(text).prefix();
    for (std::uint32_t i = layout.differentials; i < styles.differentials.size(); ++i) {
        const auto& format = styles.differentials[i];
        const auto number = format.number_format ? styles.intern_number_format(*format.number_format) : 0;
        append_differential(differentials, prefix, format, number);
    }
    StylesWriter writer(text, book);
    writer.extend_number_formats(layout.number_formats);
    writer.extend("fonts", styles.fonts, layout.fonts, append_font);
    writer.extend("fills", styles.fills, layout.fills, append_fill);
    writer.extend("borders", styles.borders, layout.borders, append_border);
    writer.extend_named_styles(layout.named_styles);
    writer.extend(
        "cellXfs", styles.formats, layout.formats, [&](std::string& out, std::string_view p, const CellFormat& format) {
            const auto& named = styles.named_styles;
            const auto parent = format.named_style < named.size() ? named[format.named_style].format : CellFormat();
            append_cell_format(out, p, format, parent);
        });
    writer.extend("dxfs", differentials,
                  styles.differentials.size() - std::min(layout.differentials, styles.differentials.size()));
    if (book.palette_changed) writer.write_palette();
    return writer.apply();
}

std::string empty_styles(bool strict) {
    std::string text("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<styleSheet xmlns=\"");
    text.append(strict ? StrictMain : TransitionalMain).append("\"/>");
    return text;
}

}  // namespace kestrune::host
