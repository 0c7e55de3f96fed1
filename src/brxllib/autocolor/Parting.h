#pragma once

#include <cstdint>
#include <optional>
#include <utility>

#include "automation/Value.h"
#include "formula/Area.h"

namespace kestrune::brxllib {

// Whether an answer says that the cells differ.
inline bool is_mixed(const automation::Value& answer) { return answer.is(automation::Value::Kind::Null); }
template <class T>
bool is_mixed(const std::optional<T>& answer) {
    return !answer.has_value();
}

namespace parting {

// So many lines cut off an area that are few beside the rest, one after the other, and the rest is halved: areas whose
// lines all differ are not read over and over.
constexpr int most_small_cuts = 4;
constexpr std::int32_t small_share = 16;

inline std::int32_t lines_of(const formula::Area& area, bool columns) { return columns ? area.columns() : area.rows(); }

// The first lines of an area, and the others.
inline std::pair<formula::Area, formula::Area> cut(const formula::Area& area, bool columns, std::int32_t lines) {
    formula::Area first = area;
    formula::Area rest = area;
    if (columns) {
        first.last_column = area.first_column + lines - 1;
        rest.first_column = first.last_column + 1;
    } else {
        first.last_row = area.first_row + lines - 1;
        rest.first_row = first.last_row + 1;
    }
    return {first, rest};
}

inline bool is_small(std::int32_t lines, std::int32_t all) { return lines < all / small_share; }

// How many of the first lines of a mixed area are alike when the first is, and what they have: widening steps, then
// halves.
template <class Read, class Answer>
std::pair<std::int32_t, Answer> alike_lines(const formula::Area& area, bool columns, Read&& read, Answer first) {
    std::int32_t alike = 1;
    std::int32_t mixed = lines_of(area, columns);
    for (std::int32_t step = 1; alike + 1 < mixed;) {
        const std::int32_t tried = step > 0 && alike + step < mixed ? alike + step : alike + (mixed - alike) / 2;
        auto answer = read(cut(area, columns, tried).first);
        if (is_mixed(answer)) {
            mixed = tried;
            step = 0;
        } else {
            alike = tried;
            first = std::move(answer);
            step *= 2;
        }
    }
    return {alike, std::move(first)};
}

}  // namespace parting

// Parts an area into rectangles whose cells are alike in something that Excel answers Null for when cells differ.
// read(area) asks Excel and answers a Value, or an optional of what several answers together say; visit(area, answer)
// gets each uniform rectangle and what all its cells have. A single cell that is still mixed is passed over.
//
// Sheets differ by rows or by columns: when the first row or column of a mixed area is alike in itself, so are mostly
// some next to it, and the area is cut where that ends. Else it is cut where the first row's or column's cells cease to
// be alike, and halved where nothing is.
template <class Read, class Visit>
void visit_uniform_parts(const formula::Area& area, Read&& read, Visit&& visit, int small_cuts = 0) {
    const auto answer = read(area);
    if (!is_mixed(answer)) {
        visit(area, answer);
        return;
    }
    if (area.single_cell()) return;
    bool columns = area.columns() > area.rows();
    std::int32_t lines = parting::lines_of(area, columns) / 2;
    bool small = false;
    if (small_cuts < parting::most_small_cuts) {
        for (const bool of_columns : {false, true}) {
            const std::int32_t all = parting::lines_of(area, of_columns);
            if (all == 1) continue;
            auto first = read(parting::cut(area, of_columns, 1).first);
            if (is_mixed(first)) continue;
            const auto [alike, theirs] = parting::alike_lines(area, of_columns, read, std::move(first));
            const auto [before, rest] = parting::cut(area, of_columns, alike);
            visit(before, theirs);
            visit_uniform_parts(rest, read, visit, parting::is_small(alike, all) ? small_cuts + 1 : 0);
            return;
        }
        const auto corner = read(formula::Area::cell(area.top_left()));
        std::int32_t widest = 1;
        for (const bool of_columns : {false, true}) {
            const formula::Area line = parting::cut(area, !of_columns, 1).first;
            const std::int32_t all = parting::lines_of(area, of_columns);
            if (all == 1 || is_mixed(corner)) continue;
            const std::int32_t alike = parting::alike_lines(line, of_columns, read, corner).first;
            if (alike == 1 || (widest > 1 && parting::is_small(alike, all))) continue;
            columns = of_columns;
            widest = lines = alike;
            small = parting::is_small(alike, all);
            if (!small) break;
        }
    } else if (area.rows() > 1 && area.columns() > 1) {
        const bool row_is_mixed = is_mixed(read(parting::cut(area, false, 1).first));
        const bool column_is_mixed = is_mixed(read(parting::cut(area, true, 1).first));
        if (row_is_mixed != column_is_mixed) {
            columns = row_is_mixed;
            lines = parting::lines_of(area, columns) / 2;
        }
    }
    const auto [first, second] = parting::cut(area, columns, lines);
    visit_uniform_parts(first, read, visit);
    visit_uniform_parts(second, read, visit, small ? small_cuts + 1 : 0);
}

}  // namespace kestrune::brxllib
