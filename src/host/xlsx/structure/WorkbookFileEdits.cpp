#include <fmt/format.h>

#include <algorithm>

#include "host/model/ModelError.h"
#include "host/xlsx/WorkbookFile.h"
#include "host/xlsx/structure/DependentParts.h"
#include "host/xlsx/structure/MovedSheet.h"

namespace kestrune::host {

XmlText WorkbookFile::base_of(const SheetPart& part) const {
    return part.base ? *part.base : package_.read_original_xml(part.name);
}

void WorkbookFile::move_part(std::size_t position) {
    SheetPart& part = sheets_[position];
    Sheet& sheet = *book_.sheets()[position];
    const auto edits = std::span(book_.edits()).subspan(part.edits);
    if (edits.empty()) return;
    part.edits = book_.edits().size();
    if (sheet.kind() != SheetKind::Worksheet || !sheet.loaded()) return;
    const XmlText base = base_of(part);
    const auto relationships = package_.relationships(part.name);
    const auto has_table = [&](const std::string& id) {
        return std::ranges::find(relationships, id, &Relationship::id) != relationships.end();
    };
    MovedSheet moved = move_sheet({base.text, part.layout, sheet.name(), package_.file(), part.name, has_table}, edits);
    if (moved.text == base.text) return;
    take_places(sheet, moved);
    part.base = XmlText{std::move(moved.text), base.encoding};
    part.layout = std::move(moved.layout);
}

void WorkbookFile::require_movable(std::size_t position) {
    SheetPart& part = sheets_[position];
    if (part.movable) return;
    const XmlText base = base_of(part);
    if (const std::string why = unmovable_in(base.text, part.layout); !why.empty()) {
        throw ModelError(fmt::format("rows and columns of the sheet '{}' cannot come or go: in {}, {}",
                                     book_.sheets()[position]->name(), part.name, why));
    }
    part.movable = true;
}

std::function<void()> WorkbookFile::prepare_edit(const formula::Edit& edit) {
    const auto& sheets = book_.sheets();
    std::vector<std::string> names;
    for (std::size_t i = 0; i < sheets_.size(); ++i) {
        if (sheets[i]->kind() == SheetKind::Worksheet) require_movable(i);
        names.push_back(sheets_[i].name);
    }
    return move_dependent_parts(package_, book_, names, edit);
}

}  // namespace kestrune::host
