#pragma once

#include <optional>

#include "automation/Value.h"
#include "formula/Area.h"

namespace kestrune::brxllib {

// Whether an answer says that the cells differ.
inline bool is_mixed(const automation::Value& answer) { return answer.is(automation::Value::Kind::Null); }
template <class T>
bool is_mixed(const std::optional<T>& answer) {
    return !answer.has_value();
}

// Parts an area into rectangles whose cells are alike in something that Excel answers Null for when cells differ.
// read(area) asks Excel and answers a Value, or an optional of what several answers together say; visit(area, answer)
// gets each uniform rectangle and what all its cells have. A single cell that is still mixed is passed over. Sheets
// differ by columns or by rows, so the first column and the first row of a mixed area tell which way to cut it.
template <class Read, class Visit>
void visit_uniform_parts(const formula::Area& area, Read&& read, Visit&& visit) {
    const auto answer = read(area);
    if (!is_mixed(answer)) {
        visit(area, answer);
        return;
    }
    if (area.single_cell()) return;
    bool by_columns = area.columns() > area.rows();
    if (area.rows() > 1 && area.columns() > 1) {
        const bool row_is_mixed =
            is_mixed(read(formula::Area{area.first_row, area.first_column, area.first_row, area.last_column}));
        const bool column_is_mixed =
            is_mixed(read(formula::Area{area.first_row, area.first_column, area.last_row, area.first_column}));
        if (row_is_mixed != column_is_mixed) by_columns = row_is_mixed;
    }
    formula::Area first = area;
    formula::Area second = area;
    if (by_columns) {
        first.last_column = area.first_column + area.columns() / 2 - 1;
        second.first_column = first.last_column + 1;
    } else {
        first.last_row = area.first_row + area.rows() / 2 - 1;
        second.first_row = first.last_row + 1;
    }
    visit_uniform_parts(first, read, visit);
    visit_uniform_parts(second, read, visit);
}

}  // namespace kestrune::brxllib
