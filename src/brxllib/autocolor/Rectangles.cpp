#include "brxllib/autocolor/Rectangles.h"

#include <utility>

#include "formula/A1.h"

namespace kestrune::brxllib {
namespace {

using formula::Area;

// Runs along lines, each grown over the following lines as long as these have the same run. A line is a row, or a
// column with the block turned over.
std::vector<Area> grown_runs(std::int32_t lines, std::int32_t length, const auto& holds) {
    std::vector<Area> done;
    std::vector<Area> open;   // those that reach the line before, from left to right
    std::vector<Area> reach;  // those that reach this line
    for (std::int32_t line = 0; line < lines; ++line) {
        reach.clear();
        auto above = open.begin();
        for (std::int32_t at = 0; at < length;) {
            if (!holds(line, at)) {
                ++at;
                continue;
            }
            const std::int32_t first = at;
            while (at < length && holds(line, at)) ++at;
            while (above != open.end() && above->first_column < first) done.push_back(*above++);
            if (above != open.end() && above->first_column == first && above->last_column == at - 1) {
                reach.push_back(*above++);
                reach.back().last_row = line;
            } else {
                reach.push_back({line, first, line, at - 1});
            }
        }
        done.insert(done.end(), above, open.end());
        open.swap(reach);
    }
    done.insert(done.end(), open.begin(), open.end());
    return done;
}

}  // namespace

std::vector<Area> rectangles(const Area& block, std::span<const std::uint8_t> cells, std::uint8_t wanted) {
    const auto width = static_cast<std::size_t>(block.columns());
    const auto holds = [&](std::int32_t row, std::int32_t column) {
        return cells[static_cast<std::size_t>(row) * width + static_cast<std::size_t>(column)] == wanted;
    };
    std::vector<Area> by_rows = grown_runs(block.rows(), block.columns(), holds);
    std::vector<Area> by_columns;
    if (by_rows.size() > 1) {
        by_columns = grown_runs(block.columns(), block.rows(),
                                [&](std::int32_t column, std::int32_t row) { return holds(row, column); });
        for (Area& area : by_columns) area = {area.first_column, area.first_row, area.last_column, area.last_row};
    }
    std::vector<Area>& fewer = by_rows.size() <= 1 || by_rows.size() <= by_columns.size() ? by_rows : by_columns;
    for (Area& area : fewer) {
        area.first_row += block.first_row;
        area.last_row += block.first_row;
        area.first_column += block.first_column;
        area.last_column += block.first_column;
    }
    return std::move(fewer);
}

AddressText address_of(std::span<const Area> areas) {
    AddressText address;
    for (const Area& area : areas) {
        const std::string text = formula::area_text(area);
        if (address.areas > 0 && address.text.size() + 1 + text.size() > longest_address) break;
        if (address.areas++ > 0) address.text += ',';
        address.text += text;
    }
    return address;
}

}  // namespace kestrune::brxllib
