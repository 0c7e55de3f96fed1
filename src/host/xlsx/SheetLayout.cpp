#include "host/xlsx/SheetLayout.h"

#include <algorithm>
#include <array>
#include <string>

namespace kestrune::host {

int worksheet_order(std::string_view local_name) {
    static constexpr auto order = std::to_array<std::string_view>({
        "sheetPr",
        "dimension",
        "sheetViews",
        "sheetFormatPr",
        "cols",
        "sheetData",
        "sheetCalcPr",
        "sheetProtection",
        "protectedRanges",
        "scenarios",
        "autoFilter",
        "sortState",
        "dataConsolidate",
        "customSheetViews",
        "mergeCells",
        "phoneticPr",
        "conditionalFormatting",
        "dataValidations",
        "hyperlinks",
        "printOptions",
        "pageMargins",
        "pageSetup",
        "headerFooter",
        "rowBreaks",
        "colBreaks",
        "customProperties",
        "cellWatches",
        "ignoredErrors",
        "smartTags",
        "drawing",
        "legacyDrawing",
        "legacyDrawingHF",
        "drawingHF",
        "picture",
        "oleObjects",
        "controls",
        "webPublishItems",
        "tableParts",
        "extLst",
    });
    const auto found = std::find(order.begin(), order.end(), local_name);
    return found == order.end() ? -1 : static_cast<int>(found - order.begin());
}

void insert_child(TextEdits& edits, std::string_view text, const std::vector<SheetLayout::Extent>& children,
                  std::string_view name, std::string_view source, int (*order)(std::string_view)) {
    const int rank = order(name);
    std::size_t place = XmlElement::root(text).tag_end();
    for (const auto& child : children) {
        const int other = order(XmlElement(text, child.begin).local());
        if (other > rank) break;
        if (other >= 0) place = child.end;
    }
    edits.insert(place, source);
}

void insert_child(TextEdits& edits, const XmlElement& parent, std::string_view name, std::string_view source,
                  int (*order)(std::string_view)) {
    std::vector<SheetLayout::Extent> children;
    for (auto child = parent.first_child(); child; child = child.next())
        children.push_back({static_cast<std::uint32_t>(child.begin()), static_cast<std::uint32_t>(child.end())});
    insert_child(edits, parent.document(), children, name, source, order);
}

void open_root(std::string& text) {
    const auto root = XmlElement::root(text);
    if (!root.empty()) return;
    std::string opened(">");
    opened.append("</").append(root.name()).append(">");
    text.replace(root.tag_end() - 2, 2, opened);
}

}  // namespace kestrune::host
