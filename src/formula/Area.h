#pragma once

#include <algorithm>
#include <compare>
#include <cstdint>
#include <optional>

namespace kestrune::formula {

// The grid of a worksheet in files from 2007 on.
inline constexpr std::int32_t max_rows = 1'048'576;
inline constexpr std::int32_t max_columns = 16'384;

// A cell's place on a sheet, 1-based. Orders row by row, as sheets are stored and read.
struct Position {
    std::int32_t row = 1;
    std::int32_t column = 1;

    auto operator<=>(const Position&) const = default;
    [[nodiscard]] bool on_sheet() const { return row >= 1 && row <= max_rows && column >= 1 && column <= max_columns; }
};

// A rectangle of cells, 1-based, both corners inside.
struct Area {
    std::int32_t first_row = 1;
    std::int32_t first_column = 1;
    std::int32_t last_row = 1;
    std::int32_t last_column = 1;

    bool operator==(const Area&) const = default;

    static Area cell(Position at) { return {at.row, at.column, at.row, at.column}; }
    static Area sheet() { return {1, 1, max_rows, max_columns}; }

    [[nodiscard]] std::int32_t rows() const { return last_row - first_row + 1; }
    [[nodiscard]] std::int32_t columns() const { return last_column - first_column + 1; }
    [[nodiscard]] std::int64_t cells() const { return std::int64_t{rows()} * columns(); }
    [[nodiscard]] Position top_left() const { return {first_row, first_column}; }

    [[nodiscard]] bool whole_rows() const { return first_column == 1 && last_column == max_columns; }
    [[nodiscard]] bool whole_columns() const { return first_row == 1 && last_row == max_rows; }
    [[nodiscard]] bool single_cell() const { return first_row == last_row && first_column == last_column; }

    [[nodiscard]] bool contains(Position p) const {
        return p.row >= first_row && p.row <= last_row && p.column >= first_column && p.column <= last_column;
    }
    [[nodiscard]] bool contains(const Area& other) const {
        return contains(other.top_left()) && contains(Position{other.last_row, other.last_column});
    }
    [[nodiscard]] std::optional<Area> intersection(const Area& other) const {
        const Area common{std::max(first_row, other.first_row), std::max(first_column, other.first_column),
                          std::min(last_row, other.last_row), std::min(last_column, other.last_column)};
        if (common.first_row > common.last_row || common.first_column > common.last_column) return std::nullopt;
        return common;
    }
};

}  // namespace kestrune::formula
