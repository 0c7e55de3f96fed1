#include "brxllib/undo/snapshot/Pieces.h"

#include <algorithm>

#include "brxllib/autocolor/ClassReader.h"

namespace kestrune::brxllib::undo {

using formula::Area;

Area used_area(const excel::Worksheet& sheet) {
    Area used;
    for (const Area& area : areas_of(sheet.UsedRange())) {
        used.last_row = std::max(used.last_row, area.last_row);
        used.last_column = std::max(used.last_column, area.last_column);
    }
    return used;
}

std::vector<Piece> pieces_of(const std::vector<Area>& areas, const Area& used) {
    std::vector<Piece> pieces;
    for (const Area& area : areas) {
        Area below = area;
        below.first_row = std::max(area.first_row, used.last_row + 1);
        if (below.rows() > 0) pieces.push_back({below, false, area.whole_columns(), false});
    }
    for (const Area& area : areas) {
        Area beside = area;
        beside.last_row = std::min(area.last_row, used.last_row);
        beside.first_column = std::max(area.first_column, used.last_column + 1);
        if (beside.rows() > 0 && beside.columns() > 0) pieces.push_back({beside, false, false, area.whole_rows()});
    }
    for (const Area& area : areas) {
        if (const auto common = area.intersection(used)) pieces.push_back({*common, true});
    }
    return pieces;
}

}  // namespace kestrune::brxllib::undo
