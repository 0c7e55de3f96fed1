#include "host/objects/SpecialCells.h"

#include <algorithm>

#include "host/objects/ArrayFormulas.h"
#include "host/objects/Constants.h"

namespace kestrune::host {
namespace {

std::int32_t kind_of(const Cell& cell) {
    switch (cell.kind) {
        case CellKind::String:
            return xlTextValues;
        case CellKind::Boolean:
            return xlLogical;
        case CellKind::Error:
            return xlErrors;
        default:
            return xlNumbers;  // a formula that was not calculated yet as well
    }
}

// Rectangles of cells that come column by column, from top to bottom: runs, each grown over the following columns as
// long as these have the same run.
class RunsByColumn {
  public:
    void add(Position at) {
        if (at.column != column_) close(at.column);
        if (!runs_.empty() && runs_.back().last_row == at.row - 1) {
            runs_.back().last_row = at.row;
        } else {
            runs_.push_back(Area::cell(at));
        }
    }
    void add(std::int32_t column, std::int32_t first_row, std::int32_t last_row) {
        if (column != column_) close(column);
        if (first_row <= last_row) runs_.push_back({first_row, column, last_row, column});
    }
    std::vector<Area> take() {
        close(column_ + 2);
        done_.insert(done_.end(), open_.begin(), open_.end());
        return std::move(done_);
    }

  private:
    // Ends a column; the next one may continue its runs if it is its neighbour.
    void close(std::int32_t next) {
        auto left = open_.begin();
        for (Area& run : runs_) {
            while (left != open_.end() && left->first_row < run.first_row) ++left;
            if (left == open_.end() || left->first_row != run.first_row || left->last_row != run.last_row) continue;
            run.first_column = left->first_column;
            left->last_column = 0;  // taken over
        }
        std::ranges::copy_if(open_, std::back_inserter(done_), [](const Area& area) { return area.last_column > 0; });
        open_ = std::move(runs_);
        runs_.clear();
        if (next != column_ + 1) {
            done_.insert(done_.end(), open_.begin(), open_.end());
            open_.clear();
        }
        column_ = next;
    }

    std::int32_t column_ = -1;
    std::vector<Area> runs_;  // of the column at hand
    std::vector<Area> open_;  // that reach the column before
    std::vector<Area> done_;
};

std::vector<Area> blanks(Sheet& sheet, const Area& area) {
    RunsByColumn runs;
    Position next{area.first_row, area.first_column};  // the first place not looked at
    const auto skip_to = [&](Position at) {
        for (; next.column < at.column; next = {area.first_row, next.column + 1}) {
            runs.add(next.column, next.row, area.last_row);
        }
        runs.add(at.column, next.row, at.row - 1);
        next.row = at.row + 1;
    };
    sheet.visit_cells(area, false, [&](Position at, const Cell& cell) {
        if (cell.kind != CellKind::Blank || cell.formula != 0) skip_to(at);
    });
    skip_to({area.first_row, area.last_column + 1});
    return runs.take();
}

}  // namespace

std::vector<Area> find_special_cells(Sheet& sheet, const Area& area, const SpecialCells& wanted) {
    if (wanted.type == xlCellTypeBlanks) return blanks(sheet, area);
    const bool formulas = wanted.type == xlCellTypeFormulas;
    // Every cell of an array formula holds it, though one stores it.
    const std::vector<Formula> arrays = arrays_in(sheet, area);
    const auto in_array = [&](Position at) {
        return std::ranges::any_of(arrays, [&](const Formula& array) { return array.reach.contains(at); });
    };
    RunsByColumn runs;
    sheet.visit_cells(area, false, [&](Position at, const Cell& cell) {
        const bool holds_formula = cell.formula != 0;
        if (holds_formula != formulas || (!holds_formula && cell.kind == CellKind::Blank)) return;
        if ((kind_of(cell) & wanted.kinds) != 0 && !in_array(at)) runs.add(at);
    });
    std::vector<Area> found = runs.take();
    if (formulas) {
        for (const Formula& array : arrays) found.push_back(*array.reach.intersection(area));
    }
    return found;
}

}  // namespace kestrune::host
