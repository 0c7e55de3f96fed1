#include "host/model/Sheet.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kestrune::host {
namespace {

constexpr std::size_t index_of(std::int32_t column) { return static_cast<std::size_t>(column - 1); }

// Twins of a row, as damaged files have them: the last one counts.
void sort_rows(std::vector<Cell>& cells) {
    std::ranges::stable_sort(cells, {}, &Cell::row);
    const auto kept =
        std::unique(cells.rbegin(), cells.rend(), [](const Cell& a, const Cell& b) { return a.row == b.row; });
    cells.erase(cells.begin(), kept.base());
}

}  // namespace

Sheet::Sheet(Workbook& workbook, std::string name, SheetKind kind)
    : workbook_(workbook), name_(std::move(name)), kind_(kind) {}

void Sheet::ensure_loaded() {
    if (!loader_) return;
    const auto loader = std::exchange(loader_, nullptr);
    try {
        loader(*this);
        finish_loading();
    } catch (...) {
        // The next need meets the same broken part again instead of half a sheet.
        cells_.clear();
        formulas_.clear();
        arrays_.clear();
        rows_.clear();
        columns_ = {};
        merges_.clear();
        conditional_formats_.clear();
        unsorted_ = false;
        loader_ = loader;
        throw;
    }
}

void Sheet::finish_loading() {
    constexpr std::size_t worth_shrinking = 4096;
    for (const auto& column : cells_) {
        if (!column) continue;
        std::vector<Cell>& cells = column->cells;
        if (unsorted_ && !std::ranges::is_sorted(cells, std::ranges::less_equal{}, &Cell::row)) sort_rows(cells);
        if (cells.size() > worth_shrinking && cells.capacity() - cells.size() > cells.size() / 8) cells.shrink_to_fit();
    }
    unsorted_ = false;
    columns_.finish_loading();
    styled_rows_known_ = false;
}

CellColumn* Sheet::column_if(std::int32_t column) const {
    if (column < 1 || index_of(column) >= cells_.size()) return nullptr;
    return cells_[index_of(column)].get();
}

std::span<const Cell> Sheet::cells_between(std::int32_t column, std::int32_t first_row, std::int32_t last_row) const {
    const CellColumn* stored = column_if(column);
    if (!stored) return {};
    return {stored->from(first_row), stored->from(last_row + 1)};
}

CellColumn& Sheet::column_or_new(std::int32_t column) {
    if (index_of(column) >= cells_.size()) cells_.resize(index_of(column) + 1);
    auto& place = cells_[index_of(column)];
    if (!place) place = std::make_unique<CellColumn>();
    return *place;
}

Cell& Sheet::append_loaded(std::int32_t column, const Cell& cell) {
    std::vector<Cell>& cells = column_or_new(column).cells;
    if (!cells.empty() && cells.back().row >= cell.row) unsorted_ = true;
    if (cell.formula != 0 && cell.formula <= formulas_.size()) {
        // Some programs write too small a reach for a shared group; its members decide.
        Formula& formula = formulas_[cell.formula - 1];
        if (formula.kind == Formula::Kind::Shared) {
            Area& reach = formula.reach;
            reach = {std::min(reach.first_row, cell.row), std::min(reach.first_column, column),
                     std::max(reach.last_row, cell.row), std::max(reach.last_column, column)};
        }
    }
    return cells.emplace_back(cell);
}

std::uint32_t Sheet::add_loaded_formula(Formula formula) {
    using Kind = Formula::Kind;
    const bool covers_others = formula.kind == Kind::Array || formula.kind == Kind::DataTable;
    if (covers_others && !formula.reach.single_cell()) arrays_.push_back(static_cast<std::uint32_t>(formulas_.size()));
    formulas_.push_back(std::move(formula));
    return static_cast<std::uint32_t>(formulas_.size());
}

std::map<std::int32_t, RowFormat>& Sheet::loaded_rows() {
    styled_rows_known_ = false;
    return rows_;
}

const Cell* Sheet::find(Position at) {
    ensure_loaded();
    const CellColumn* column = column_if(at.column);
    return column ? column->find(at.row) : nullptr;
}

const std::vector<std::unique_ptr<CellColumn>>& Sheet::cell_columns() {
    ensure_loaded();
    return cells_;
}

std::int64_t Sheet::stored_cells() {
    std::int64_t count = 0;
    for (const auto& column : cell_columns())
        if (column) count += std::ssize(column->cells);
    return count;
}

Area Sheet::used_area() {
    ensure_loaded();
    constexpr auto far = std::numeric_limits<std::int32_t>::max();
    Area used{far, far, 0, 0};
    for (std::int32_t column = 1; column <= std::ssize(cells_); ++column) {
        const CellColumn* stored = column_if(column);
        if (!stored) continue;
        // A blank cell that looks as if it were not there is not used.
        const auto counts = [&](const Cell& cell) {
            return cell.kind != CellKind::Blank || cell.formula != 0 ||
                   cell.style != inherited_style({cell.row, column});
        };
        const auto first = std::ranges::find_if(stored->cells, counts);
        if (first == stored->cells.end()) continue;
        const auto last = std::find_if(stored->cells.rbegin(), stored->cells.rend(), counts);
        used.first_row = std::min(used.first_row, first->row);
        used.last_row = std::max(used.last_row, last->row);
        used.first_column = std::min(used.first_column, column);
        used.last_column = column;
    }
    // What an array shows is used, whether a value of it is stored or not.
    for (const std::uint32_t index : arrays_) {
        if (!array_is_live(index)) continue;
        const Area& reach = formulas_[index].reach;
        used.first_row = std::min(used.first_row, reach.first_row);
        used.last_row = std::max(used.last_row, reach.last_row);
        used.first_column = std::min(used.first_column, reach.first_column);
        used.last_column = std::max(used.last_column, reach.last_column);
    }
    const auto counts = [](const auto& entry) {
        const RowFormat& row = entry.second;
        return row.has_style || row.custom_height || row.hidden || row.outline_level > 0;
    };
    if (const auto first = std::ranges::find_if(rows_, counts); first != rows_.end()) {
        used.first_row = std::min(used.first_row, first->first);
        used.last_row = std::max(used.last_row, std::find_if(rows_.rbegin(), rows_.rend(), counts)->first);
    }
    if (used.last_row == 0) return {};
    if (used.last_column == 0) used.first_column = used.last_column = 1;
    return used;
}

void Sheet::visit_cells(const Area& area, bool by_rows, const std::function<void(Position, const Cell&)>& visit) {
    ensure_loaded();
    struct Cursor {
        std::int32_t column;
        std::vector<Cell>::const_iterator next, end;
        std::int32_t below;  // the next cursor waiting for the same row; -1: none
    };
    std::vector<Cursor> cursors;
    std::int32_t first_row = area.last_row;
    std::int32_t last_row = area.first_row;
    const auto last_column = std::min(area.last_column, static_cast<std::int32_t>(cells_.size()));
    for (std::int32_t column = area.first_column; column <= last_column; ++column) {
        const CellColumn* stored = column_if(column);
        if (!stored) continue;
        const Cursor cursor{column, stored->from(area.first_row), stored->from(area.last_row + 1), -1};
        if (cursor.next == cursor.end) continue;
        if (!by_rows) {
            for (auto cell = cursor.next; cell != cursor.end; ++cell) visit({cell->row, column}, *cell);
            continue;
        }
        first_row = std::min(first_row, cursor.next->row);
        last_row = std::max(last_row, std::prev(cursor.end)->row);
        cursors.push_back(cursor);
    }
    if (cursors.empty()) return;

    // Each column waits at the row of its next cell, so that a row costs the cells it has, however wide the sheet is.
    std::vector<std::int32_t> waiting(static_cast<std::size_t>(last_row - first_row) + 1, -1);
    const auto wait = [&](std::int32_t which) {
        Cursor& cursor = cursors[static_cast<std::size_t>(which)];
        std::int32_t& head = waiting[static_cast<std::size_t>(cursor.next->row - first_row)];
        cursor.below = std::exchange(head, which);
    };
    for (std::int32_t which = 0; which < std::ssize(cursors); ++which) wait(which);
    std::vector<std::int32_t> row_cursors;
    for (std::int32_t row = first_row; row <= last_row; ++row) {
        row_cursors.clear();
        for (std::int32_t which = waiting[static_cast<std::size_t>(row - first_row)]; which >= 0;
             which = cursors[static_cast<std::size_t>(which)].below)
            row_cursors.push_back(which);
        std::ranges::reverse(row_cursors);
        if (!std::ranges::is_sorted(row_cursors)) std::ranges::sort(row_cursors);
        for (const std::int32_t which : row_cursors) {
            Cursor& cursor = cursors[static_cast<std::size_t>(which)];
            visit({row, cursor.column}, *cursor.next);
            if (++cursor.next != cursor.end) wait(which);
        }
    }
}

bool Sheet::changed() const {
    return moved || cells_changed || rows_changed || columns_.changed || merges_changed ||
           conditional_formats_changed || defaults_.changed || view_.changed;
}

}  // namespace kestrune::host
