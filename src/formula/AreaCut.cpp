#include "formula/AreaCut.h"

#include <utility>

namespace kestrune::formula {

std::vector<Area> area_without(const Area& area, const Area& hole) {
    const auto common = area.intersection(hole);
    if (!common) return {area};
    std::vector<Area> left;
    const auto add = [&](const Area& piece) {
        if (piece.rows() > 0 && piece.columns() > 0) left.push_back(piece);
    };
    add({area.first_row, area.first_column, common->first_row - 1, area.last_column});
    add({common->first_row, area.first_column, common->last_row, common->first_column - 1});
    add({common->first_row, common->last_column + 1, common->last_row, area.last_column});
    add({common->last_row + 1, area.first_column, area.last_row, area.last_column});
    return left;
}

std::vector<Area> areas_without(std::vector<Area> areas, const std::vector<Area>& holes) {
    for (const Area& hole : holes) {
        std::vector<Area> left;
        for (const Area& area : areas)
            for (const Area& piece : area_without(area, hole)) left.push_back(piece);
        areas = std::move(left);
    }
    return areas;
}

bool same_cells(const std::vector<Area>& one, const std::vector<Area>& other) {
    return one == other || (areas_without(one, other).empty() && areas_without(other, one).empty());
}

}  // namespace kestrune::formula
