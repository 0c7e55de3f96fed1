#include <algorithm>

#include "host/model/ModelError.h"
#include "host/model/Sheet.h"

namespace kestrune::host {

const std::vector<Area>& Sheet::merges() {
    ensure_loaded();
    return merges_;
}

std::optional<Area> Sheet::merge_at(Position at) {
    for (const Area& area : merges())
        if (area.contains(at)) return area;
    return std::nullopt;
}

void Sheet::merge(const Area& area) {
    if (area.single_cell() || std::ranges::find(merges(), area) != merges_.end()) return;
    for (const std::uint32_t index : arrays_)
        if (formulas_[index].reach.intersection(area) && array_is_live(index))
            throw ModelError("Array formulas are not valid in merged cells.");

    // Excel keeps the content that stands first, row by row, and the merged cell shows it in its corner.
    const Position corner = area.top_left();
    const Cell* kept = find(corner);
    if (!kept || (kept->kind == CellKind::Blank && kept->formula == 0)) move_first_content(area, corner);
    for (const Area& others : {Area{area.first_row, area.first_column + 1, area.first_row, area.last_column},
                               Area{area.first_row + 1, area.first_column, area.last_row, area.last_column}})
        if (others.rows() > 0 && others.columns() > 0) clear_content(others);
    unmerge(area);
    merges_.push_back(area);
    merges_changed = true;
}

void Sheet::move_first_content(const Area& area, Position corner) {
    Position first{formula::max_rows + 1, 1};
    visit_cells(area, false, [&](Position at, const Cell& cell) {
        if ((cell.kind != CellKind::Blank || cell.formula != 0) && at < first) first = at;
    });
    if (first.row > formula::max_rows) return;
    const std::string formula = formula_at(first);
    if (formula.empty())
        set_content(corner, content_at(first));
    else
        set_formula(corner, formula);
}

void Sheet::unmerge(const Area& area) {
    ensure_loaded();
    if (std::erase_if(merges_, [&](const Area& merged) { return merged.intersection(area).has_value(); }) > 0)
        merges_changed = true;
}

}  // namespace kestrune::host
