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

// What the formats in use are made of.
struct Pieces {
    Pieces(const StyleTable& styles, const StylesLayout& layout)
        : fonts(layout.fonts, styles.fonts.size(), layout.named_fonts),
          fills(layout.fills, styles.fills.size(), layout.named_fills),
          borders(layout.borders, styles.borders.size(), layout.named_borders) {
        // Lists that the file lacks begin with the entries that every file begins with.
        fonts.use(0);
        for (std::uint32_t i = 0; i < StyleTable::defaults().fills.size(); ++i) fills.use(i);
        borders.use(0);
    }

    void use(const CellFormat& format) {
        fonts.use(format.font);
        fills.use(format.fill);
        borders.use(format.border);
        number_formats.push_back(format.number_format);
    }
    [[nodiscard]] CellFormat numbered(CellFormat format) const {
        format.font = fonts(format.font);
        format.fill = fills(format.fill);
        format.border = borders(format.border);
        return format;
    }

    FileNumbers fonts;
    FileNumbers fills;
    FileNumbers borders;
    std::vector<std::uint32_t> number_formats;
};

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
    void extend(std::string_view name, const List& list, const FileNumbers& numbers, Append&& append) {
        std::string entries;
        for (std::uint32_t i = 0; i < numbers.filling(); ++i) append(entries, root_.prefix(), list[0]);
        for (const auto position : numbers.added()) append(entries, root_.prefix(), list[position]);
        extend(name, entries, numbers.filling() + numbers.added().size());
    }

    // Those of the numbers that the file does not know.
    void extend_number_formats(std::vector<std::uint32_t> numbers, const std::vector<std::uint32_t>& in_file) {
        std::erase_if(numbers, [&](std::uint32_t number) {
            return std::binary_search(in_file.begin(), in_file.end(), number) ||
                   !book_.styles.custom_number_formats().contains(number);
        });
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        std::string entries;
        for (const auto number : numbers) {
            entries.append("<").append(root_.prefix()).append("numFmt numFmtId=\"").append(std::to_string(number));
            entries.append("\" formatCode=\"");
            append_escaped_attribute(entries, book_.styles.number_format(number));
            entries += "\"/>";
        }
        if (book_.styles.removed_number_formats().empty())
            extend("numFmts", entries, numbers.size());
        else
            rewrite_number_formats(entries, numbers.size());
    }

    // Formats that show in what was taken away are General.
    void forget_removed_number_formats() {
        const auto& removed = book_.styles.removed_number_formats();
        if (removed.empty()) return;
        for (const std::string_view list : {"cellStyleXfs", "cellXfs"}) {
            const auto element = root_.child(list);
            for (auto xf = element ? element.first_child() : XmlElement(); xf; xf = xf.next()) {
                if (is_removed(xf)) edits_.set_attribute(xf, "numFmtId", "0");
            }
        }
    }

    template <class Numbered>
    void extend_named_styles(std::size_t loaded, Numbered&& numbered) {
        const auto& styles = book_.styles.named_styles;
        std::string formats;
        std::string names;
        for (std::size_t i = loaded; i < styles.size(); ++i) {
            const CellFormat format = numbered(styles[i].format);
            append_cell_format(formats, root_.prefix(), format, format);
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
    [[nodiscard]] bool is_removed(const XmlElement& element) const {
        const auto number = element.integer("numFmtId", -1);
        return number >= 0 && number <= 0x7FFFFFFF &&
               book_.styles.removed_number_formats().contains(static_cast<std::uint32_t>(number));
    }

    // The list without what was taken away, and with the new entries.
    void rewrite_number_formats(std::string_view added, std::size_t count) {
        const auto list = root_.child("numFmts");
        if (!list) return extend("numFmts", added, count);
        std::string entries;
        for (auto child = list.first_child(); child; child = child.next()) {
            if (is_removed(child)) continue;
            entries += child.source();
            ++count;
        }
        entries += added;
        if (entries.empty()) return edits_.remove(list.begin(), list.end() - list.begin());
        edits_.set_content(list, entries);
        if (list.attribute("count")) edits_.set_attribute(list, "count", std::to_string(count));
    }

    void append_palette_entry(std::string& out, std::uint32_t bgr) const {
        out.append("<").append(root_.prefix()).append("rgbColor rgb=\"00").append(argb_text(bgr).substr(2));
        out += "\"/>";
    }

    XmlElement root_;
    const Workbook& book_;
    TextEdits edits_;
};

}  // namespace

bool styles_changed(const Workbook& book, const StylesLayout& layout, const FileNumbers& formats) {
    // A file without formats shows all cells in the default one without having it written down.
    return formats.added().size() > (layout.formats == 0 ? 1 : 0) ||
           book.styles.differentials.size() > layout.differentials || book.palette_changed ||
           !book.styles.removed_number_formats().empty();
}

std::string write_styles(std::string text, Workbook& book, const StylesLayout& layout, const FileNumbers& formats) {
    open_root(text);
    StyleTable& styles = book.styles;
    const auto& named = styles.named_styles;
    Pieces pieces(styles, layout);
    for (const auto position : formats.added()) pieces.use(styles.formats[position]);
    for (std::size_t i = layout.named_styles; i < named.size(); ++i) pieces.use(named[i].format);

    std::string differentials;
    const auto prefix = XmlElement::root(text).prefix();
    for (std::uint32_t i = layout.differentials; i < styles.differentials.size(); ++i) {
        const DifferentialFormat& format = styles.differentials[i];
        const auto number = format.number_format ? styles.intern_number_format(*format.number_format) : 0;
        append_differential(differentials, prefix, format, number);
        pieces.number_formats.push_back(number);
    }
    StylesWriter writer(text, book);
    const auto numbered = [&](const CellFormat& format) { return pieces.numbered(format); };
    writer.extend_number_formats(pieces.number_formats, layout.number_formats);
    writer.forget_removed_number_formats();
    writer.extend("fonts", styles.fonts, pieces.fonts, append_font);
    writer.extend("fills", styles.fills, pieces.fills, append_fill);
    writer.extend("borders", styles.borders, pieces.borders, append_border);
    writer.extend_named_styles(layout.named_styles, numbered);
    writer.extend("cellXfs", styles.formats, formats, [&](std::string& out, std::string_view p, const CellFormat& f) {
        const CellFormat parent = f.named_style < named.size() ? named[f.named_style].format : CellFormat();
        append_cell_format(out, p, numbered(f), numbered(parent));
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
