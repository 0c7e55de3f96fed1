#include "cli/diff/Rectangles.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

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

std::vector<formula::Area> rectangles(const std::vector<formula::Area>& areas) {
    // Bands of rows in which no area begins or ends; bands with the same columns that touch are one.
    std::set<std::int32_t> cuts;
    for (const formula::Area& area : areas) cuts.insert({area.first_row, area.last_row + 1});
    using Columns = std::vector<std::pair<std::int32_t, std::int32_t>>;
    std::vector<formula::Area> done;
    Columns above;
    std::size_t band = 0;  // where the rectangles of the last band begin
    for (auto cut = cuts.begin(); cut != cuts.end() && std::next(cut) != cuts.end(); ++cut) {
        const std::int32_t last_row = *std::next(cut) - 1;
        Columns spans;
        for (const formula::Area& area : areas)
            if (area.first_row <= *cut && area.last_row >= last_row)
                spans.emplace_back(area.first_column, area.last_column);
        std::ranges::sort(spans);
        Columns columns;
        for (const auto& [first, last] : spans) {
            if (!columns.empty() && first <= columns.back().second + 1)
                columns.back().second = std::max(columns.back().second, last);
            else
                columns.emplace_back(first, last);
        }
        if (columns == above) {
            for (std::size_t i = band; i < done.size(); ++i) done[i].last_row = last_row;
            continue;
        }
        band = done.size();
        for (const auto& [first, last] : columns) done.push_back({*cut, first, last_row, last});
        above = std::move(columns);
    }
    return done;
}

}  // namespace kestrune::cli
