#include "host/objects/keys/Pointer.h"

#include <algorithm>
#include <utility>

#include "host/objects/FilledCells.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

using formula::max_columns;
using formula::max_rows;

Sheet& active_worksheet(HostSession& session) {
    Sheet* sheet = session.active_sheet();
    if (!sheet || sheet->kind() != SheetKind::Worksheet) refuse("Application.ActiveCell", "no worksheet is active");
    return *sheet;
}

bool hidden(Sheet& sheet, Position at, bool as_row) {
    return as_row ? sheet.row_height(at.row) == 0 : sheet.column_width(at.column) == 0;
}

}  // namespace

Pointer::Pointer(HostSession& session) : session_(session), sheet_(active_worksheet(session)) {}

Area& Pointer::active_area() const {
    std::vector<Area>& areas = view().selection;
    const auto found = std::ranges::find_if(areas, [&](const Area& area) { return area.contains(view().active_cell); });
    return found == areas.end() ? areas.front() : *found;
}

Area Pointer::active_cell() const {
    return sheet_.merge_at(view().active_cell).value_or(Area::cell(view().active_cell));
}

Position Pointer::far_corner() const {
    const Area& area = active_area();
    const Area cell = active_cell();
    return {cell.first_row == area.first_row ? area.last_row : area.first_row,
            cell.first_column == area.first_column ? area.last_column : area.first_column};
}

void Pointer::select(std::vector<Area> areas, Position active) const {
    RangeObject(CellRange(session_, sheet_, std::move(areas))).select();
    view().active_cell = active;
}

void Pointer::extend_to(Position corner) const {
    const Area cell = active_cell();
    std::vector<Area> areas = view().selection;
    const auto place = static_cast<std::size_t>(&active_area() - view().selection.data());
    areas[place] = {std::min(cell.first_row, corner.row), std::min(cell.first_column, corner.column),
                    std::max(cell.last_row, corner.row), std::max(cell.last_column, corner.column)};
    select(std::move(areas), view().active_cell);
}

void Pointer::go(Position to, bool extend) {
    if (extend)
        extend_to(to);
    else
        select({Area::cell(to)}, to);
}

void Pointer::step(std::int32_t rows, std::int32_t columns, bool extend) {
    const Area cell = active_cell();
    Position to = extend ? far_corner() : view().active_cell;
    if (!extend) {
        if (rows != 0) to.row = rows > 0 ? cell.last_row : cell.first_row;
        if (columns != 0) to.column = columns > 0 ? cell.last_column : cell.first_column;
    }
    do {
        to = {to.row + rows, to.column + columns};
        if (!to.on_sheet()) return;
    } while (hidden(sheet_, to, rows != 0));
    go(to, extend);
}

void Pointer::run(std::int32_t direction, bool extend) {
    Position from = view().active_cell;
    if (extend) {
        // The data is that of the active cell's own row or column.
        const Position corner = far_corner();
        const bool along_column = direction == xlUp || direction == xlDown;
        from = along_column ? Position{corner.row, from.column} : Position{from.row, corner.column};
        const Position to = end_of_run(sheet_, from, direction);
        return extend_to(along_column ? Position{to.row, corner.column} : Position{corner.row, to.column});
    }
    go(end_of_run(sheet_, from, direction), false);
}

void Pointer::next(bool by_rows, bool backwards) {
    const Area area = active_area();
    if (view().selection.size() == 1 && (area.single_cell() || sheet_.merge_at(area.top_left()) == area)) {
        const std::int32_t one = backwards ? -1 : 1;
        return by_rows ? step(0, one, false) : step(one, 0, false);
    }
    const Position now = view().active_cell;
    const std::int64_t line = by_rows ? area.columns() : area.rows();
    const std::int64_t place = by_rows ? (now.row - area.first_row) * line + (now.column - area.first_column)
                                       : (now.column - area.first_column) * line + (now.row - area.first_row);
    const std::int64_t to = (place + (backwards ? area.cells() - 1 : 1)) % area.cells();
    const auto across = static_cast<std::int32_t>(to / line);
    const auto along = static_cast<std::int32_t>(to % line);
    view().active_cell = by_rows ? Position{area.first_row + across, area.first_column + along}
                                 : Position{area.first_row + along, area.first_column + across};
    view().selection_changed = true;
}

void Pointer::select_rows() {
    std::vector<Area> areas = view().selection;
    for (Area& area : areas) area = {area.first_row, 1, area.last_row, max_columns};
    select(std::move(areas), view().active_cell);
}

void Pointer::select_columns() {
    std::vector<Area> areas = view().selection;
    for (Area& area : areas) area = {1, area.first_column, max_rows, area.last_column};
    select(std::move(areas), view().active_cell);
}

void Pointer::select_cell() { select({active_cell()}, view().active_cell); }

void Pointer::select_region() { select({filled_region(sheet_, Area::cell(view().active_cell))}, view().active_cell); }

void Pointer::select_region_or_sheet() {
    const Area region = filled_region(sheet_, Area::cell(view().active_cell));
    const bool is_selected = view().selection.size() == 1 && view().selection.front() == region;
    const bool nothing_there = region.single_cell() && !filled(sheet_, region.top_left());
    select({is_selected || nothing_there ? Area::sheet() : region}, view().active_cell);
}

Position Pointer::row_start() const { return {view().active_cell.row, view().frozen_columns + 1}; }

Position Pointer::sheet_start() const { return {view().frozen_rows + 1, view().frozen_columns + 1}; }

Position Pointer::sheet_end() const {
    const Area used = sheet_.used_area();
    return {used.last_row, used.last_column};
}

}  // namespace kestrune::host
