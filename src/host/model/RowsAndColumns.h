#pragma once

#include <cstdint>
#include <map>
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
    // Changes all columns from first to last; change sees each run of alike columns once, gaps as plain runs.
    template <class Change>
    void change(std::int32_t first, std::int32_t last, Change&& change_run);
    // Visits the runs that make up first..last, gaps as plain runs, cut to these bounds.
    template <class Visit>
    void visit(std::int32_t first, std::int32_t last, Visit&& visit_run) const;
    void load(ColumnRun run) { runs_.push_back(run); }  // in order, as the file lists them

    bool changed = false;  // differs from the file

  private:
    void split_at(std::int32_t column);  // makes a run boundary before the column
    void join();                         // makes neighbours alike into one run, drops plain ones

    std::vector<ColumnRun> runs_;
};

}  // namespace kestrune::host
