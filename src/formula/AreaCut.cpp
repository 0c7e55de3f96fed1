#include "formula/AreaCut.h"

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

}  // namespace kestrune::formula
