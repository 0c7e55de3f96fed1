#include "host/objects/FilledCells.h"

#include <algorithm>

#include "host/objects/Constants.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

bool filled(const Cell* cell) { return cell && (cell->kind != CellKind::Blank || cell->formula != 0); }

}  // namespace

bool filled(Sheet& sheet, Position at) { return filled(sheet.find(at)); }

bool any_filled(Sheet& sheet, const Area& area) {
    const auto& columns = sheet.cell_columns();
    const auto stored = std::min(area.last_column, static_cast<std::int32_t>(columns.size()));
    for (std::int32_t column = area.first_column; column <= stored; ++column) {
        const CellColumn* cells = columns[static_cast<std::size_t>(column - 1)].get();
        if (!cells) continue;
        auto cell = std::ranges::lower_bound(cells->cells, area.first_row, {}, &Cell::row);
        for (; cell != cells->cells.end() && cell->row <= area.last_row; ++cell) {
            if (filled(&*cell)) return true;
        }
    }
    return false;
}

Position end_of_run(Sheet& sheet, Position from, std::int32_t direction) {
    Position step{0, 0};
    switch (direction) {
        case xlUp:
            step.row = -1;
            break;
        case xlDown:
            step.row = 1;
            break;
        case xlToLeft:
            step.column = -1;
            break;
        case xlToRight:
            step.column = 1;
            break;
        default:
            refuse("Range.End", "the direction is xlUp, xlDown, xlToLeft or xlToRight");
    }
    const auto next = [&](Position at) { return Position{at.row + step.row, at.column + step.column}; };
    Position at = from;
    if (!next(at).on_sheet()) return at;
    const bool along_run = filled(sheet, at) && filled(sheet, next(at));
    at = next(at);
    // Beyond the used cells nothing is filled: straight to the edge.
    const Area used = sheet.used_area();
    while (along_run ? next(at).on_sheet() && filled(sheet, next(at)) : !filled(sheet, at)) {
        const bool beyond =
            (step.row > 0 && at.row > used.last_row) || (step.column > 0 && at.column > used.last_column);
        if (beyond) {
            return step.row > 0 ? Position{formula::max_rows, at.column} : Position{at.row, formula::max_columns};
        }
        if (!next(at).on_sheet()) return at;
        at = next(at);
    }
    return at;
}

Area filled_region(Sheet& sheet, Area region) {
    for (bool grown = true; grown;) {
        grown = false;
        const std::int32_t top = std::max(region.first_row - 1, 1);
        const std::int32_t left = std::max(region.first_column - 1, 1);
        const std::int32_t bottom = std::min(region.last_row + 1, formula::max_rows);
        const std::int32_t right = std::min(region.last_column + 1, formula::max_columns);
        // Corners count: cells that touch at a corner belong together.
        if (top < region.first_row && any_filled(sheet, {top, left, top, right})) {
            region.first_row = top;
            grown = true;
        }
        if (bottom > region.last_row && any_filled(sheet, {bottom, left, bottom, right})) {
            region.last_row = bottom;
            grown = true;
        }
        if (left < region.first_column && any_filled(sheet, {top, left, bottom, left})) {
            region.first_column = left;
            grown = true;
        }
        if (right > region.last_column && any_filled(sheet, {top, right, bottom, right})) {
            region.last_column = right;
            grown = true;
        }
    }
    return region;
}

}  // namespace kestrune::host
