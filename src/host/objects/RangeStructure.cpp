#include <algorithm>
#include <utility>

#include "host/objects/Optional.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

using formula::Edit;

// The edits that the areas of a range ask for, the last rows or columns first, so that none moves the next.
std::vector<Edit> edits_of(std::string_view member, const CellRange& cells, bool inserts) {
    const std::vector<Area>& areas = cells.areas();
    const bool rows = std::ranges::all_of(areas, &Area::whole_rows);
    if (!rows && !std::ranges::all_of(areas, &Area::whole_columns))
        refuse(member, "the host inserts and deletes whole rows and whole columns, not blocks of cells");
    std::vector<Edit> edits;
    for (const Area& area : areas) {
        Edit& edit = edits.emplace_back();
        edit.kind = rows ? (inserts ? Edit::Kind::insert_rows : Edit::Kind::delete_rows)
                         : (inserts ? Edit::Kind::insert_columns : Edit::Kind::delete_columns);
        edit.sheet = cells.sheet().name();
        edit.first = rows ? area.first_row : area.first_column;
        edit.count = rows ? area.rows() : area.columns();
    }
    std::ranges::sort(edits, std::greater(), &Edit::first);
    for (std::size_t i = 1; i < edits.size(); ++i) {
        if (edits[i].first + edits[i].count > edits[i - 1].first)
            refuse(member, "the command cannot be used on overlapping areas");
    }
    return edits;
}

// Formulas of the other open workbooks follow as well, whatever they call this one.
void others_follow(HostSession& session, const Workbook& edited, Edit edit) {
    const std::string path = full_name(edited);
    for (const auto& other : session.workbooks()) {
        Workbook& model = *other->model;
        if (&model == &edited) continue;
        edit.books = {path};
        bool linked = false;
        const auto links = model.read_external_links ? model.read_external_links() : std::vector<std::string>();
        for (std::size_t i = 0; i < links.size(); ++i) {
            if (!formula::same_file(links[i], path)) continue;
            edit.books.push_back(std::to_string(i + 1));
            linked = true;
        }
        if (model.follow_elsewhere(edit, linked)) session.changed(model);
    }
}

void apply(const CellRange& cells, const std::vector<Edit>& edits, bool like_behind) {
    HostSession& session = cells.session();
    Workbook& workbook = cells.workbook();
    Sheet& sheet = cells.sheet();
    const std::vector<Area> areas = cells.areas();
    if (edits.size() > 1) {
        // All or nothing: what the first of them needs at the sheet's end, the others need on top.
        Edit all = edits.back();
        all.count = 0;
        for (const Edit& edit : edits) {
            workbook.require_applicable(edit);
            all.count += edit.count;
        }
        if (all.inserts()) sheet.require_movable(all);
    }
    for (const Edit& edit : edits) {
        workbook.apply(edit, like_behind);
        CellRange::follow(session, sheet, edit);
        others_follow(session, workbook, edit);
    }
    CellRange(session, sheet, areas).content_changed();
}

}  // namespace

bool RangeObject::insert(const Value& shift, const Value& copy_origin) {
    constexpr std::string_view member = "Range.Insert";
    const std::vector<Edit> edits = edits_of(member, cells_, true);
    const bool rows = edits.front().of_rows();
    const std::int32_t direction = value_or(shift, rows ? xlShiftDown : xlShiftToRight);
    if (direction != xlShiftDown && direction != xlShiftToRight) refuse(member, "there is no such direction");
    const std::int32_t origin = value_or(copy_origin, xlFormatFromLeftOrAbove);
    if (origin != xlFormatFromLeftOrAbove && origin != xlFormatFromRightOrBelow)
        refuse(member, "there is no such origin of formats");
    const SheetProtection& protection = cells_.sheet().protection();
    if (protection.on && !(rows ? protection.insert_rows : protection.insert_columns))
        refuse(member, "the sheet '" + cells_.sheet().name() + "' is protected");
    apply(cells_, edits, origin == xlFormatFromRightOrBelow);
    return true;
}

bool RangeObject::remove(const Value& shift) {
    constexpr std::string_view member = "Range.Delete";
    const std::vector<Edit> edits = edits_of(member, cells_, false);
    const bool rows = edits.front().of_rows();
    const std::int32_t direction = value_or(shift, rows ? xlShiftUp : xlShiftToLeft);
    if (direction != xlShiftUp && direction != xlShiftToLeft) refuse(member, "there is no such direction");
    const SheetProtection& protection = cells_.sheet().protection();
    if (protection.on) {
        if (!(rows ? protection.delete_rows : protection.delete_columns))
            refuse(member, "the sheet '" + cells_.sheet().name() + "' is protected");
        cells_.require_content_allowed(member);
    }
    apply(cells_, edits, false);
    return true;
}

}  // namespace kestrune::host
