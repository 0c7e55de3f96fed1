#include <algorithm>
#include <iterator>

#include "host/model/Sheet.h"

namespace kestrune::host {
namespace {

// Position of the first cell at or below a row. Columns are mostly without holes, where the row alone tells it.
std::size_t position_from(const std::vector<Cell>& cells, std::int32_t row) {
    if (cells.empty() || row <= cells.front().row) return 0;
    if (row > cells.back().row) return cells.size();
    const auto guess = static_cast<std::size_t>(row - cells.front().row);
    if (guess < cells.size() && cells[guess].row == row) return guess;
    // Every cell takes a row of its own, so the wanted one stands no further down than the guess.
    const auto end = cells.begin() + static_cast<std::ptrdiff_t>(std::min(guess, cells.size()));
    return static_cast<std::size_t>(
        std::lower_bound(cells.begin(), end, row, [](const Cell& cell, std::int32_t r) { return cell.row < r; }) -
        cells.begin());
}

Cell blank_cell(BlankCell blank) {
    Cell cell;
    cell.row = blank.row;
    cell.style = blank.style;
    return cell;
}

}  // namespace

std::vector<Cell>::const_iterator CellColumn::from(std::int32_t row) const {
    return cells.begin() + static_cast<std::ptrdiff_t>(position_from(cells, row));
}

std::vector<Cell>::iterator CellColumn::from(std::int32_t row) {
    return cells.begin() + static_cast<std::ptrdiff_t>(position_from(cells, row));
}

const Cell* CellColumn::find(std::int32_t row) const {
    const auto cell = from(row);
    return cell != cells.end() && cell->row == row ? &*cell : nullptr;
}

Cell* CellColumn::find(std::int32_t row) {
    const auto cell = from(row);
    return cell != cells.end() && cell->row == row ? &*cell : nullptr;
}

Cell& CellColumn::at_or_new(std::int32_t row, StyleId style_when_new) {
    const auto cell = from(row);
    if (cell != cells.end() && cell->row == row) return *cell;
    return *cells.insert(cell, blank_cell({row, style_when_new}));
}

bool CellColumn::add_missing(const std::vector<BlankCell>& blanks) {
    if (blanks.empty()) return false;
    std::size_t missing = 0;
    const auto begin = from(blanks.front().row);
    auto cell = begin;
    for (const BlankCell& blank : blanks) {
        while (cell != cells.end() && cell->row < blank.row) ++cell;
        if (cell == cells.end() || cell->row != blank.row) ++missing;
    }
    if (missing == 0) return false;

    // From the bottom up, each cell moves straight to its last place.
    const auto start = begin - cells.begin();
    std::ptrdiff_t from = std::ssize(cells) - 1;
    cells.resize(cells.size() + missing);
    std::ptrdiff_t to = std::ssize(cells) - 1;
    for (auto blank = blanks.rbegin(); to > from; ++blank) {
        while (from >= start && cells[static_cast<std::size_t>(from)].row > blank->row)
            cells[static_cast<std::size_t>(to--)] = cells[static_cast<std::size_t>(from--)];
        if (from < start || cells[static_cast<std::size_t>(from)].row != blank->row)
            cells[static_cast<std::size_t>(to--)] = blank_cell(*blank);
    }
    return true;
}

}  // namespace kestrune::host
