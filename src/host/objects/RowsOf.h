#pragma once

#include <cstdint>

#include "host/model/Sheet.h"

namespace kestrune::host {

// Visits rows first..last so that every kind is seen: each row that stores something, as a run of one,
// and the plain rows between them as one run each. visit(first, last) goes on while it answers true.
template <class Visit>
void visit_row_runs(Sheet& sheet, std::int32_t first, std::int32_t last, Visit&& visit) {
    const auto& formats = sheet.row_formats();
    std::int32_t next = first;
    for (auto row = formats.lower_bound(first); row != formats.end() && row->first <= last; ++row) {
        if (row->first > next && !visit(next, row->first - 1)) return;
        if (!visit(row->first, row->first)) return;
        next = row->first + 1;
    }
    if (next <= last) visit(next, last);
}

}  // namespace kestrune::host
