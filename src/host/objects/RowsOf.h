#pragma once

#include <cstdint>

#include "host/model/Sheet.h"

namespace kestrune::host {

// Visits rows first..last so that every kind is seen: runs of rows that store the same, and the plain rows between
// them. visit(first, last) goes on while it answers true.
template <class Visit>
void visit_row_runs(Sheet& sheet, std::int32_t first, std::int32_t last, Visit&& visit) {
    const auto alike = [](RowFormat one, const RowFormat& other) {
        one.changed = other.changed;
        return one == other;
    };
    const auto& formats = sheet.row_formats();
    std::int32_t next = first;
    for (auto row = formats.lower_bound(first); row != formats.end() && row->first <= last;) {
        if (row->first > next && !visit(next, row->first - 1)) return;
        const auto run = row;
        std::int32_t run_end = row->first;
        for (++row; row != formats.end() && row->first == run_end + 1 && row->first <= last; ++row, ++run_end) {
            if (!alike(run->second, row->second)) break;
        }
        if (!visit(run->first, run_end)) return;
        next = run_end + 1;
    }
    if (next <= last) visit(next, last);
}

}  // namespace kestrune::host
