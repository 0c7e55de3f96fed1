#include "host/objects/AreaSets.h"

#include <algorithm>
#include <optional>

namespace kestrune::host {
namespace {

using formula::Area;

// The rectangle that two areas make up together, if they do.
std::optional<Area> joined(const Area& a, const Area& b) {
    if (a.contains(b)) return a;
    if (b.contains(a)) return b;
    const Area both{std::min(a.first_row, b.first_row), std::min(a.first_column, b.first_column),
                    std::max(a.last_row, b.last_row), std::max(a.last_column, b.last_column)};
    const bool same_rows = a.first_row == b.first_row && a.last_row == b.last_row;
    const bool same_columns = a.first_column == b.first_column && a.last_column == b.last_column;
    const bool touch_across = b.first_column <= a.last_column + 1 && a.first_column <= b.last_column + 1;
    const bool touch_down = b.first_row <= a.last_row + 1 && a.first_row <= b.last_row + 1;
    if ((same_rows && touch_across) || (same_columns && touch_down)) return both;
    return std::nullopt;
}

}  // namespace

void add_area(std::vector<Area>& areas, Area area) {
    for (auto other = areas.begin(); other != areas.end(); ++other) {
        const auto both = joined(*other, area);
        if (!both) continue;
        if (*both == *other) return;
        // The grown area stays in its place and may now join others.
        *other = *both;
        const Area grown = *both;
        for (auto later = areas.begin(); later != areas.end(); ++later) {
            if (later == other || !joined(*later, grown)) continue;
            areas.erase(other);
            add_area(areas, grown);
            return;
        }
        return;
    }
    areas.push_back(area);
}

std::vector<Area> common_areas(const std::vector<Area>& first, const std::vector<Area>& second) {
    std::vector<Area> common;
    for (const Area& a : first) {
        for (const Area& b : second) {
            if (const auto both = a.intersection(b)) common.push_back(*both);
        }
    }
    return common;
}

}  // namespace kestrune::host
