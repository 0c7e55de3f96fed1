#include "host/xlsx/structure/DependentParts.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>

#include "host/model/ModelError.h"
#include "host/xlsx/XmlCharacters.h"
#include "host/xlsx/package/SmallPart.h"
#include "host/xlsx/structure/Moving.h"
#include "host/xlsx/structure/Places.h"

namespace kestrune::host {
namespace {

void refuse_part(Moving& moving, const MovingPart& part) {
    throw ModelError(fmt::format("rows and columns cannot come or go: {} names cells in a way not known here ({})",
                                 part.name, moving.package.content_type(part.name)));
}

struct PartKind {
    std::string_view content_type;  // how it ends
    void (*move)(Moving&, const MovingPart&);
};

constexpr auto kinds = std::to_array<PartKind>({
    {"officedocument.drawing+xml", move_drawing},
    {"drawingml.chart+xml", move_any},
    {"ms-office.chartex+xml", move_any},
    {"spreadsheetml.comments+xml", move_any},
    {"ms-excel.threadedcomments+xml", move_any},
    {"officedocument.vmlDrawing", move_vml},
    {"spreadsheetml.table+xml", move_table},
    {"spreadsheetml.tableSingleCells+xml", move_any},
    {"spreadsheetml.pivotTable+xml", move_pivot_table},
    {"spreadsheetml.pivotCacheDefinition+xml", move_pivot_cache},
    {"ms-excel.controlproperties+xml", move_any},
    {"ms-excel.namedsheetviews+xml", move_any},
    {"spreadsheetml.revisionHeaders+xml", refuse_part},
    {"spreadsheetml.volatileDependencies+xml", refuse_part},
    {"ms-excel.macrosheet+xml", refuse_part},
    {"ms-excel.intlmacrosheet+xml", refuse_part},
});

// What a sheet may lead to without an objection: the kinds above, and what names no cells.
constexpr auto known_relationships = std::to_array<std::string_view>(
    {"drawing",    "vmlDrawing",       "comments",        "threadedComment",  "table",
     "pivotTable", "queryTable",       "printerSettings", "hyperlink",        "image",
     "ctrlProp",   "oleObject",        "package",         "control",          "slicer",
     "timeline",   "customProperty",   "namedSheetView",  "tableSingleCells", "activeXControlBinary",
     "chart",      "legacyDiagramText"});

void require_known(const Moving& moving, const std::string& sheet_part) {
    for (const Relationship& relationship : moving.package.relationships(sheet_part)) {
        const std::string_view kind = std::string_view(relationship.type).substr(relationship.type.rfind('/') + 1);
        if (std::ranges::find(known_relationships, kind) != known_relationships.end()) continue;
        throw ModelError(
            fmt::format("rows and columns of the sheet '{}' cannot come or go: it has a part of a kind not "
                        "known here, {} ({})",
                        moving.edit.sheet, relationship.written, kind));
    }
}

}  // namespace

std::string sheet_of(const Moving& moving, const MovingPart& part) {
    return part.sheet ? moving.book.sheets()[*part.sheet]->name() : std::string();
}

bool on_edited_sheet(const Moving& moving, const MovingPart& part) {
    return part.sheet && formula::means_edited_sheet({}, sheet_of(moving, part), moving.edit);
}

std::optional<pugi::xml_document> tree_of(const Moving& moving, const MovingPart& part) {
    constexpr std::uint64_t largest = std::uint64_t{256} << 20;
    const XmlText xml = moving.package.read_xml(part.name, largest);
    if (!on_edited_sheet(moving, part)) {
        const auto plain = [](char c) {
            return static_cast<signed char>(c) > ' ' && c != '&' && c != '\'' && c != '<';
        };
        const std::string& name = moving.edit.sheet;
        if (std::ranges::all_of(name, plain) && xml.text.find(name) == std::string::npos) return std::nullopt;
    }
    return parse_xml_tree(xml.text, moving.package.file(), part.name);
}

void replace(Moving& moving, const MovingPart& part, const pugi::xml_document& tree) {
    moving.replaced.emplace_back(part.name, write_small_part(tree));
}

void move_any(Moving& moving, const MovingPart& part) {
    auto tree = tree_of(moving, part);
    if (!tree) return;
    Places places(moving.edit, sheet_of(moving, part));
    places.move(*tree);
    if (places.changed()) replace(moving, part, *tree);
}

std::function<void()> move_dependent_parts(Package& package, Workbook& book,
                                           const std::vector<std::string>& sheet_parts, const formula::Edit& edit) {
    auto moving = std::make_shared<Moving>(Moving{package, book, edit, {}, {}});
    std::map<std::string, std::size_t> owners;
    for (std::size_t i = 0; i < sheet_parts.size(); ++i) {
        if (formula::means_edited_sheet({}, book.sheets()[i]->name(), edit)) require_known(*moving, sheet_parts[i]);
        for (const Relationship& relationship : package.relationships(sheet_parts[i]))
            if (!relationship.external) owners.emplace(relationship.target, i);
    }
    for (const PartInfo& info : package.parts()) {
        const std::string type = package.content_type(info.name);
        const auto kind =
            std::ranges::find_if(kinds, [&](const PartKind& each) { return type.ends_with(each.content_type); });
        if (kind == kinds.end()) continue;
        MovingPart part{info.name, std::nullopt};
        if (const auto owner = owners.find(info.name); owner != owners.end()) part.sheet = owner->second;
        kind->move(*moving, part);
    }
    return [moving, &package] {
        for (auto& [name, bytes] : moving->replaced) package.replace(name, std::move(bytes));
        for (const auto& last : moving->later) last(package);
    };
}

}  // namespace kestrune::host
