#include "cli/diff/Rectangles.h"

#include <algorithm>
#include <map>

namespace kestrune::cli {

std::vector<formula::Area> rectangles(std::vector<formula::Position> cells) {
    std::ranges::sort(
        cells, [](const auto& a, const auto& b) { return a.column != b.column ? a.column < b.column : a.row < b.row; });
    std::vector<formula::Area> done;
    // Rectangles that reach the column before, by their rows; an equal run of this column widens them.
    std::map<std::pair<std::int32_t, std::int32_t>, formula::Area> open;
    for (std::size_t i = 0; i < cells.size();) {
        const std::int32_t column = cells[i].column;
        std::map<std::pair<std::int32_t, std::int32_t>, formula::Area> widened;
        while (i < cells.size() && cells[i].column == column) {
            const std::int32_t first = cells[i].row;
            std::int32_t last = first;
            for (++i; i < cells.size() && cells[i].column == column && cells[i].row == last + 1; ++i) ++last;
            formula::Area area{first, column, last, column};
            const auto before = open.find({first, last});
            if (before != open.end() && before->second.last_column == column - 1) {
                area.first_column = before->second.first_column;
                open.erase(before);
            }
            widened.emplace(std::pair{first, last}, area);
        }
        for (const auto& [rows, area] : open) done.push_back(area);
        open = std::move(widened);
    }
    for (const auto& [rows, area] : open) done.push_back(area);
    std::ranges::sort(done, {}, &formula::Area::top_left);
    return done;
}

}  // namespace kestrune::cli
