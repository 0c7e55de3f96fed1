#include <fmt/format.h>

#include <algorithm>

#include "formula/A1.h"
#include "host/model/ModelError.h"
#include "host/xlsx/AreaText.h"
#include "host/xlsx/package/XmlTree.h"
#include "host/xlsx/structure/Moving.h"
#include "host/xlsx/structure/Places.h"

namespace kestrune::host {
namespace {

using formula::Area;

std::vector<pugi::xml_node> elements_named(pugi::xml_node node, std::string_view name) {
    std::vector<pugi::xml_node> found;
    for (const pugi::xml_node child : node.children()) {
        if (local_name(child.name()) == name) found.push_back(child);
        const auto below = elements_named(child, name);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

}  // namespace

// The page fields stand above the table, with an empty row between.
void move_pivot_table(Moving& moving, const MovingPart& part) {
    if (!on_edited_sheet(moving, part)) return;
    auto tree = tree_of(moving, part);
    Places places(moving.edit, sheet_of(moving, part));
    for (const pugi::xml_node location : elements_named(tree->document_element(), "location")) {
        const auto area = parse_area(location.attribute("ref").value());
        if (!area) continue;
        Area all = *area;
        if (const int pages = location.attribute("rowPageCount").as_int(); pages > 0)
            all.first_row = std::max(all.first_row - pages - 1, 1);
        const auto left = formula::adjust_area(all, moving.edit);
        if (!left || left->rows() != all.rows() || left->columns() != all.columns()) {
            throw ModelError(fmt::format("part of the pivot table '{}' cannot be changed",
                                         tree->document_element().attribute("name").value()));
        }
        places.set(location.attribute("ref"), formula::area_text(*formula::adjust_area(*area, moving.edit)));
    }
    if (places.changed()) replace(moving, part, *tree);
}

void move_pivot_cache(Moving& moving, const MovingPart& part) {
    auto tree = tree_of(moving, part);
    if (!tree) return;
    Places places(moving.edit, {});
    const pugi::xml_node root = tree->document_element();
    for (const std::string_view name : {"worksheetSource", "rangeSet"}) {
        for (const pugi::xml_node source : elements_named(root, name)) {
            const bool elsewhere = std::ranges::any_of(source.attributes(), [](pugi::xml_attribute attribute) {
                return std::string_view(attribute.name()).ends_with(":id");
            });
            const auto area = parse_area(source.attribute("ref").value());
            if (elsewhere || !area || !formula::means_edited_sheet({}, source.attribute("sheet").value(), moving.edit))
                continue;
            const auto left = formula::adjust_area(*area, moving.edit);
            if (!left || left->first_row - area->first_row != 0) {
                // The first row has the names of the fields.
                const bool headers_gone =
                    !formula::adjust_area({area->first_row, 1, area->first_row, formula::max_columns}, moving.edit);
                if (!left || headers_gone)
                    throw ModelError(fmt::format("a pivot table takes its data from {}!{}, which would be gone",
                                                 moving.edit.sheet, formula::area_text(*area)));
            }
            places.set(source.attribute("ref"), formula::area_text(*left));
        }
    }
    if (places.changed()) replace(moving, part, *tree);
}

}  // namespace kestrune::host
