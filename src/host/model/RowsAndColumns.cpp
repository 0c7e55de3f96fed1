#include "host/model/RowsAndColumns.h"

namespace kestrune::host {

bool ColumnRun::same_format(const ColumnRun& other) const {
    ColumnRun moved = other;
    moved.first = first;
    moved.last = last;
    return *this == moved;
}

bool ColumnRun::plain() const { return same_format(ColumnRun{}); }

std::vector<ColumnRun>::const_iterator ColumnRuns::first_ending_at_or_after(std::int32_t column) const {
    return std::ranges::lower_bound(runs_, column, {}, &ColumnRun::last);
}

ColumnRun ColumnRuns::at(std::int32_t column) const {
    const auto run = first_ending_at_or_after(column);
    if (run != runs_.end() && run->first <= column) return *run;
    return {.first = column, .last = column};
}

StyleId ColumnRuns::style_at(std::int32_t column) const {
    const auto run = first_ending_at_or_after(column);
    return run != runs_.end() && run->first <= column ? run->style : 0;
}

void ColumnRuns::finish_loading() {
    if (!std::ranges::is_sorted(runs_, {}, &ColumnRun::first)) std::ranges::stable_sort(runs_, {}, &ColumnRun::first);
    std::int32_t next = 1;
    for (ColumnRun& run : runs_) {
        run.first = std::max(run.first, next);
        next = std::max(next, run.last + 1);
    }
    std::erase_if(runs_, [](const ColumnRun& run) { return run.first > run.last; });
}

void ColumnRuns::insert(std::int32_t first, std::int32_t count) {
    std::vector<ColumnRun> moved;
    moved.reserve(runs_.size() + 1);
    for (ColumnRun run : runs_) {
        if (run.first < first && run.last >= first) {
            ColumnRun before = run;
            before.last = first - 1;
            moved.push_back(before);
            run.first = first;
        }
        if (run.first >= first) {
            run.first += count;
            run.last = std::min(run.last + count, formula::max_columns);
        }
        if (run.first <= formula::max_columns) moved.push_back(run);
    }
    runs_ = std::move(moved);
    changed = true;
}

void ColumnRuns::erase(std::int32_t first, std::int32_t count) {
    const std::int32_t stop = first + count;
    std::vector<ColumnRun> left;
    left.reserve(runs_.size());
    for (ColumnRun run : runs_) {
        // The last columns of the sheet look like those before them, as the new ones at its end do.
        const bool to_the_end = run.last == formula::max_columns;
        if (run.first >= first) run.first = run.first < stop ? first : run.first - count;
        if (!to_the_end && run.last >= first) run.last = run.last < stop ? first - 1 : run.last - count;
        if (run.first > run.last) continue;
        if (!left.empty() && left.back().last + 1 == run.first && left.back().same_format(run))
            left.back().last = run.last;
        else
            left.push_back(run);
    }
    runs_ = std::move(left);
    changed = true;
}

void ColumnRuns::replace(const std::vector<ColumnRun>& runs) {
    const std::int32_t first = runs.front().first;
    const std::int32_t last = runs.back().last;
    std::vector<ColumnRun> joined;
    joined.reserve(runs_.size() + runs.size() + 1);
    const auto add = [&](ColumnRun run) {
        if (run.first > run.last || run.plain()) return;
        if (!joined.empty() && joined.back().last + 1 == run.first && joined.back().same_format(run))
            joined.back().last = run.last;
        else
            joined.push_back(run);
    };
    const auto add_cut = [&](ColumnRun run, std::int32_t from, std::int32_t to) {
        run.first = std::max(run.first, from);
        run.last = std::min(run.last, to);
        add(run);
    };
    for (const ColumnRun& run : runs_) add_cut(run, 1, first - 1);
    for (const ColumnRun& run : runs) add(run);
    for (const ColumnRun& run : runs_) add_cut(run, last + 1, formula::max_columns);
    runs_ = std::move(joined);
}

}  // namespace kestrune::host
