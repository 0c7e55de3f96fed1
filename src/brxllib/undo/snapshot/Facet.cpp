#include "brxllib/undo/snapshot/Facet.h"

namespace kestrune::brxllib::undo {

using formula::Area;

std::optional<Area> place_in(Place place, const Area& cells) {
    Area area = cells;
    switch (place) {
        case Place::Cells:
            break;
        case Place::LeftEdge:
            area.last_column = area.first_column;
            break;
        case Place::RightEdge:
            area.first_column = area.last_column;
            break;
        case Place::TopEdge:
            area.last_row = area.first_row;
            break;
        case Place::BottomEdge:
            area.first_row = area.last_row;
            break;
        case Place::InsideVertical:
            ++area.first_column;
            break;
        case Place::InsideHorizontal:
            ++area.first_row;
            break;
        case Place::Rows:
            area.first_column = area.last_column = 1;
            break;
        case Place::Columns:
            area.first_row = area.last_row = 1;
            break;
    }
    if (area.rows() < 1 || area.columns() < 1) return std::nullopt;
    return area;
}

Area cells_of(Place place, const Area& area) {
    Area cells = area;
    if (place == Place::InsideVertical) --cells.first_column;
    if (place == Place::InsideHorizontal) --cells.first_row;
    if (place == Place::Rows) cells.last_column = formula::max_columns;
    if (place == Place::Columns) cells.last_row = formula::max_rows;
    return cells;
}

}  // namespace kestrune::brxllib::undo
