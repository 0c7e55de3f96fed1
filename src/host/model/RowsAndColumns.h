#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "formula/Area.h"
#include "host/model/StyleTable.h"

namespace kestrune::host {

// What a sheet stores about a row besides its cells. A row without one is of standard height, shown.
struct RowFormat {
    double height = -1;  // points; negative: the sheet's standard height
    bool custom_height = false;
    bool hidden = false;
    bool collapsed = false;
    std::uint8_t outline_level = 0;  // 0..7 as stored; the object model's is one more
    bool has_style = false;
    StyleId style = 0;     // of the row's blank cells when has_style
    bool changed = false;  // differs from the file

    bool operator==(const RowFormat&) const = default;
    [[nodiscard]] bool plain() const {
        return height < 0 && !custom_height && !hidden && !collapsed && outline_level == 0 && !has_style;
    }
};

// A run of neighbouring columns alike in everything but their cells. Runs do not overlap.
struct ColumnRun {
    std::int32_t first = 1;
    std::int32_t last = 1;
    double width = -1;  // characters as stored, padding included; negative: the sheet's standard width
    bool custom_width = false;
    bool best_fit = false;
    bool hidden = false;
    bool collapsed = false;
    bool phonetic = false;
    std::uint8_t outline_level = 0;
    StyleId style = 0;

    bool operator==(const ColumnRun&) const = default;
    // Whether two runs say the same of their columns.
    [[nodiscard]] bool same_format(const ColumnRun& other) const;
    [[nodiscard]] bool plain() const;
};

// The column runs of a sheet, kept sorted, split and joined as ranges of columns change.
class ColumnRuns {
  public:
    [[nodiscard]] const std::vector<ColumnRun>& runs() const { return runs_; }
    // The run that holds a column; a plain run of that column alone where none is stored.
    [[nodiscard]] ColumnRun at(std::int32_t column) const;
    [[nodiscard]] StyleId style_at(std::int32_t column) const;
    // Changes all columns from first to last; change_run sees each run of alike columns once, gaps as plain runs. It
    // may change anything but the run's bounds.
    template <class Change>
    void change(std::int32_t first, std::int32_t last, Change&& change_run);
    // Visits the runs that make up first..last, gaps as plain runs, cut to these bounds.
    template <class Visit>
    void visit(std::int32_t first, std::int32_t last, Visit&& visit_run) const;
    // Inserts plain columns before a column, or takes columns away; what stands behind moves.
    void insert(std::int32_t first, std::int32_t count);
    void erase(std::int32_t first, std::int32_t count);
    void load(ColumnRun run) { runs_.push_back(run); }  // as the file lists them
    void finish_loading();  // sorts, and lets the first of overlapping runs win, as damaged files have them

    bool changed = false;  // differs from the file

  private:
    [[nodiscard]] std::vector<ColumnRun>::const_iterator first_ending_at_or_after(std::int32_t column) const;
    // Puts these neighbouring runs in the place of all that is stored between their bounds.
    void replace(const std::vector<ColumnRun>& runs);

    std::vector<ColumnRun> runs_;
};

template <class Visit>
void ColumnRuns::visit(std::int32_t first, std::int32_t last, Visit&& visit_run) const {
    std::int32_t next = first;
    for (auto run = first_ending_at_or_after(first); run != runs_.end() && run->first <= last; ++run) {
        if (next < run->first) visit_run(ColumnRun{.first = next, .last = run->first - 1});
        ColumnRun cut = *run;
        cut.first = std::max(run->first, first);
        cut.last = std::min(run->last, last);
        next = cut.last + 1;
        visit_run(static_cast<const ColumnRun&>(cut));
    }
    if (next <= last) visit_run(ColumnRun{.first = next, .last = last});
}

template <class Change>
void ColumnRuns::change(std::int32_t first, std::int32_t last, Change&& change_run) {
    std::vector<ColumnRun> pieces;
    bool differs = false;
    visit(first, last, [&](const ColumnRun& run) {
        ColumnRun& piece = pieces.emplace_back(run);
        change_run(piece);
        piece.first = run.first;
        piece.last = run.last;
        differs = differs || !piece.same_format(run);
    });
    if (!differs) return;
    changed = true;
    replace(pieces);
}

}  // namespace kestrune::host
