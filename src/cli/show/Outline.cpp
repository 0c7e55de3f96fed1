#include "cli/show/Outline.h"

#include <algorithm>
#include <functional>

namespace kestrune::cli {
namespace {

// level_of gives a row's or column's outline level, 0 for none; hidden ones count as well.
OutlineGutter gutter(const std::vector<std::int32_t>& visible, const std::function<int(std::int32_t)>& level_of,
                     bool summary_after, std::int32_t limit) {
    OutlineGutter result;
    for (const std::int32_t place : visible) {
        result.levels = std::max(result.levels, level_of(place));
        // A summary with its group hidden still carries the button.
        const std::int32_t beside = summary_after ? place - 1 : place + 1;
        if (beside >= 1 && beside <= limit) result.levels = std::max(result.levels, level_of(beside));
    }
    for (const std::int32_t place : visible) {
        std::vector<OutlineMark> marks(static_cast<std::size_t>(result.levels), OutlineMark::None);
        const std::int32_t beside = summary_after ? place - 1 : place + 1;
        const int own = level_of(place);
        const int inner = beside >= 1 && beside <= limit ? level_of(beside) : 0;
        for (int level = 1; level <= result.levels; ++level) {
            OutlineMark& mark = marks[static_cast<std::size_t>(level - 1)];
            if (own >= level) {
                mark = OutlineMark::Line;
            } else if (inner >= level && own == level - 1) {
                mark = std::ranges::binary_search(visible, beside) ? OutlineMark::Open : OutlineMark::Closed;
            }
        }
        result.marks.push_back(std::move(marks));
    }
    return result;
}

}  // namespace

OutlineGutter row_gutter(host::Sheet& sheet, const std::vector<std::int32_t>& visible_rows) {
    const auto level_of = [&](std::int32_t row) {
        const host::RowFormat* format = sheet.row_format(row);
        return format ? int{format->outline_level} : 0;
    };
    return gutter(visible_rows, level_of, sheet.defaults().summary_below, formula::max_rows);
}

OutlineGutter column_gutter(host::Sheet& sheet, const std::vector<std::int32_t>& visible_columns) {
    const auto level_of = [&](std::int32_t column) { return int{sheet.columns().at(column).outline_level}; };
    return gutter(visible_columns, level_of, sheet.defaults().summary_right, formula::max_columns);
}

}  // namespace kestrune::cli
