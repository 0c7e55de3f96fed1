#include "host/xlsx/LyingReading.h"

#include <algorithm>
#include <pugixml.hpp>

#include "host/xlsx/AreaText.h"
#include "host/xlsx/XmlElement.h"
#include "host/xlsx/package/XmlTree.h"

namespace kestrune::host {
namespace {

using formula::Area;

constexpr std::uint64_t largest_part = std::uint64_t{256} << 20;

pugi::xml_document tree_of(const Package& package, const std::string& part) {
    return parse_xml_tree(package.read_xml(part, largest_part).text, package.file(), part);
}

// Every element of a local name, however deep.
template <class Visit>
void visit_named(pugi::xml_node node, std::string_view name, Visit&& visit) {
    for (const pugi::xml_node child : node.children()) {
        if (local_name(child.name()) == name) visit(child);
        visit_named(child, name, visit);
    }
}

pugi::xml_node child_of(pugi::xml_node node, std::string_view name) {
    for (const pugi::xml_node child : node.children())
        if (local_name(child.name()) == name) return child;
    return {};
}

std::int32_t number_in(pugi::xml_node node, std::string_view name) { return child_of(node, name).text().as_int(); }

void read_comments(const Package& package, const std::string& part, LyingThings& things) {
    visit_named(tree_of(package, part), "comment", [&](pugi::xml_node comment) {
        if (const auto area = parse_area(comment.attribute("ref").as_string())) things.comments.push_back(*area);
    });
}

void read_drawings(const Package& package, const std::string& part, LyingThings& things) {
    const pugi::xml_document tree = tree_of(package, part);
    visit_named(tree, "from", [&](pugi::xml_node from) {
        const pugi::xml_node anchor = from.parent();
        Drawing drawing;
        Area& cells = drawing.cells;
        cells.first_row = cells.last_row = number_in(from, "row") + 1;
        cells.first_column = cells.last_column = number_in(from, "col") + 1;
        if (const pugi::xml_node to = child_of(anchor, "to")) {
            // A corner on the very border of a cell is the neighbour's.
            const auto end = [&](const char* line, const char* offset) {
                return number_in(to, line) + (child_of(to, offset).text().as_llong() > 0 ? 1 : 0);
            };
            cells.last_row = std::max(cells.first_row, end("row", "rowOff"));
            cells.last_column = std::max(cells.first_column, end("col", "colOff"));
        }
        visit_named(anchor, "cNvPr", [&](pugi::xml_node properties) {
            if (drawing.name.empty()) drawing.name = properties.attribute("name").as_string();
        });
        things.drawings.push_back(std::move(drawing));
    });
}

// Rules of today's kind and those that newer versions keep apart.
void read_validations(const XmlElement& element, LyingThings& things) {
    if (element.local() == "dataValidation") {
        std::string cells = element.value("sqref");
        if (const XmlElement place = element.child("sqref")) cells = place.text();
        things.validations.push_back(parse_areas(cells).value_or(std::vector<Area>{}));
        return;
    }
    for (XmlElement child = element.first_child(); child; child = child.next()) read_validations(child, things);
}

}  // namespace

LyingThings read_lying(const Package& package, const std::string& sheet_part, std::string_view text,
                       const SheetLayout& layout, std::span<const formula::Edit> edits) {
    LyingThings things;
    for (const SheetLayout::Extent& extent : layout.children) {
        const XmlElement child(text, extent.begin);
        if (child.local() == "dataValidations" || child.local() == "extLst") read_validations(child, things);
    }
    for (std::vector<Area>& areas : things.validations)
        for (const formula::Edit& edit : edits) areas = formula::adjust_areas(areas, edit);
    for (const Relationship& relationship : package.relationships(sheet_part)) {
        if (relationship.external || !package.has(relationship.target)) continue;
        if (relationship.is("comments")) read_comments(package, relationship.target, things);
        if (relationship.is("drawing")) read_drawings(package, relationship.target, things);
    }
    return things;
}

}  // namespace kestrune::host
