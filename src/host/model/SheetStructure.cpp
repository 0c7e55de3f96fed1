#include <algorithm>
#include <iterator>
#include <utility>

#include "host/model/ModelError.h"
#include "host/model/Sheet.h"
#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

// The rows or columns of an area along the edited axis.
std::pair<std::int32_t, std::int32_t> span_of(const Area& area, const formula::Edit& edit) {
    return edit.of_rows() ? std::pair{area.first_row, area.last_row} : std::pair{area.first_column, area.last_column};
}

bool cut_by(const Area& area, const formula::Edit& edit) {
    const auto [first, last] = span_of(area, edit);
    if (edit.inserts()) return first < edit.first && edit.first <= last;
    const std::int32_t stop = edit.first + edit.count;
    const bool touched = first < stop && last >= edit.first;
    return touched && !(first >= edit.first && last < stop);
}

bool has_content(const Cell& cell) { return cell.kind != CellKind::Blank || cell.formula != 0; }

}  // namespace

void Sheet::require_movable(const formula::Edit& edit) {
    ensure_loaded();
    for (const std::uint32_t index : arrays_) {
        const Formula& array = formulas_[index];
        if (!cut_by(array.reach, edit) || !array_is_live(index)) continue;
        throw ModelError(array.kind == Formula::Kind::DataTable ? "You cannot change part of a data table."
                                                                : "You cannot change part of an array.");
    }
    if (!edit.inserts()) return;
    const std::int32_t limit = edit.of_rows() ? formula::max_rows : formula::max_columns;
    const std::int32_t lost = limit - edit.count;  // the last row or column that stays
    const auto refuse_push = [&] {
        throw ModelError(std::string("Inserting ") + (edit.of_rows() ? "rows" : "columns") +
                         " would push cells that are not empty off the end of the sheet '" + name_ + "'.");
    };
    for (const Area& merged : merges_) {
        const auto [first, last] = span_of(merged, edit);
        if (last > lost && last >= edit.first && first > 0) refuse_push();
    }
    for (std::int32_t c = 1; c <= std::ssize(cells_); ++c) {
        const CellColumn* column = column_if(c);
        if (!column || (!edit.of_rows() && (c <= lost || c < edit.first))) continue;
        const auto first = edit.of_rows() ? column->from(std::max(lost + 1, edit.first)) : column->cells.begin();
        if (std::any_of(first, column->cells.end(), has_content)) refuse_push();
    }
}

void Sheet::move_cells(const formula::Edit& edit, bool like_behind) {
    blank_spills(edit);
    if (edit.of_rows())
        move_rows(edit, like_behind);
    else
        move_columns(edit, like_behind);
    move_lying(edit);
    moved = cells_changed = rows_changed = true;
}

// What a dynamic array showed goes with the cell that makes it.
void Sheet::blank_spills(const formula::Edit& edit) {
    if (edit.inserts()) return;
    for (const std::uint32_t index : std::vector<std::uint32_t>(arrays_)) {
        const Formula& array = formulas_[index];
        const Area reach = array.reach;
        if (formula::adjust_position(array.anchor, edit) || !cut_by(reach, edit)) continue;
        const CellColumn* column = column_if(array.anchor.column);
        const Cell* anchor = column ? column->find(array.anchor.row) : nullptr;
        if (!anchor || anchor->formula != index + 1) continue;
        for (std::int32_t c = reach.first_column; c <= reach.last_column; ++c) {
            CellColumn* shown = column_if(c);
            if (!shown) continue;
            for (auto cell = shown->from(reach.first_row); cell != shown->cells.end() && cell->row <= reach.last_row;
                 ++cell)
                if (cell->formula == 0) make_blank(*cell);
        }
    }
}

void Sheet::move_rows(const formula::Edit& edit, bool like_behind) {
    const std::int32_t first = edit.first;
    const std::int32_t count = edit.count;
    styled_rows_known_ = false;
    if (!edit.inserts()) {
        for (const auto& column : cells_) {
            if (!column) continue;
            const auto from = column->from(first);
            auto rest = column->cells.erase(from, column->from(first + count));
            for (; rest != column->cells.end(); ++rest) rest->row -= count;
        }
        rows_.erase(rows_.lower_bound(first), rows_.lower_bound(first + count));
        for (auto row = rows_.lower_bound(first); row != rows_.end();) {
            const auto next = std::next(row);
            auto node = rows_.extract(row);
            node.key() -= count;
            rows_.insert(next, std::move(node));
            row = next;
        }
        return;
    }
    const std::int32_t like = like_behind ? first : first - 1;
    RowFormat looks;
    bool formatted = false;
    if (const auto row = rows_.find(like); row != rows_.end()) {
        looks = row->second;
        looks.hidden = looks.collapsed = false;
        formatted = true;
    }
    const std::int32_t last_kept = formula::max_rows - count;
    for (std::int32_t c = 1; c <= std::ssize(cells_); ++c) {
        CellColumn* column = column_if(c);
        if (!column) continue;
        const Cell* model = column->find(like);
        const StyleId plain = looks.has_style ? looks.style : columns_.style_at(c);
        const bool blanks = model && model->style != plain;
        const StyleId style = model ? model->style : 0;
        column->cells.erase(column->from(std::max(last_kept + 1, first)), column->cells.end());
        for (auto cell = column->from(first); cell != column->cells.end(); ++cell) cell->row += count;
        if (!blanks) continue;
        std::vector<BlankCell> fresh;
        for (std::int32_t row = first; row < first + count; ++row) fresh.push_back({row, style});
        column->add_missing(fresh);
    }
    rows_.erase(rows_.upper_bound(last_kept), rows_.end());
    // From the last one up, so that none meets the next.
    auto hint = rows_.end();
    while (hint != rows_.begin()) {
        auto row = std::prev(hint);
        if (row->first < first) break;
        auto node = rows_.extract(row);
        node.key() += count;
        hint = rows_.insert(hint, std::move(node));
    }
    if (!formatted || looks.plain()) return;
    looks.changed = true;
    for (std::int32_t row = first; row < first + count; ++row) rows_.emplace_hint(hint, row, looks);
}

void Sheet::move_columns(const formula::Edit& edit, bool like_behind) {
    const std::int32_t first = edit.first;
    const std::int32_t count = edit.count;
    const auto stored = static_cast<std::int32_t>(cells_.size());
    const auto place = [&](std::int32_t column) { return cells_.begin() + (column - 1); };
    if (!edit.inserts()) {
        if (first <= stored) cells_.erase(place(first), place(std::min(first + count, stored + 1)));
        columns_.erase(first, count);
        return;
    }
    const std::int32_t like = like_behind ? first : first - 1;
    if (const std::int32_t last_kept = formula::max_columns - count; stored > last_kept)
        cells_.erase(place(std::max(last_kept + 1, first)), cells_.end());
    if (first <= std::ssize(cells_)) {
        std::vector<std::unique_ptr<CellColumn>> fresh(static_cast<std::size_t>(count));
        cells_.insert(place(first), std::make_move_iterator(fresh.begin()), std::make_move_iterator(fresh.end()));
    }
    const ColumnRun looks = like >= 1 ? columns_.at(like) : ColumnRun{};
    columns_.insert(first, count);
    columns_.change(first, first + count - 1, [&](ColumnRun& run) {
        run = looks;
        run.hidden = run.collapsed = run.best_fit = false;
    });
    columns_.changed = true;
    const CellColumn* model = like < 1 ? nullptr : column_if(like_behind ? like + count : like);
    if (!model) return;
    std::vector<BlankCell> blanks;
    for (const Cell& cell : model->cells) {
        if (cell.style != inherited_style({cell.row, first})) blanks.push_back({cell.row, cell.style});
    }
    if (blanks.empty()) return;
    for (std::int32_t column = first; column < first + count; ++column) column_or_new(column).add_missing(blanks);
}

// What lies on cells and goes where they go. Conditional formats have followed already.
void Sheet::move_lying(const formula::Edit& edit) {
    std::vector<Area> merged;
    for (const Area& area : merges_) {
        const auto left = formula::adjust_area(area, edit);
        if (left && !left->single_cell()) merged.push_back(*left);
    }
    if (merged != merges_) {
        merges_ = std::move(merged);
        merges_changed = true;
    }
    std::vector<Hyperlink> links;
    for (Hyperlink& link : hyperlinks_) {
        const auto left = formula::adjust_area(link.area, edit);
        if (!left) continue;
        link.area = *left;
        links.push_back(std::move(link));
    }
    hyperlinks_ = std::move(links);
    // A frozen pane keeps its last row and column; the selection stays where it is on the screen.
    std::int32_t& frozen = edit.of_rows() ? view_.frozen_rows : view_.frozen_columns;
    std::int32_t first = 1;
    if (frozen > 0 && !formula::adjust_span(first, frozen, edit)) frozen = 0;
}

}  // namespace kestrune::host
