#pragma once

#include <cstdint>
#include <optional>

#include "formula/Area.h"

namespace kestrune::formula {

// How formulas spell references.
enum class Notation : std::uint8_t { a1, r1c1 };

// One row or column of a reference. Read from A1 text, and from absolute R1C1 text, the value is a 1-based position;
// read from relative R1C1 text it is the distance from the cell that holds the formula.
struct Coordinate {
    std::int32_t value = 1;
    bool absolute = false;

    bool operator==(const Coordinate&) const = default;
};

enum class Shape : std::uint8_t { cells, rows, columns };

// A reference as written, without its sheet. `range` tells A1:A1 from A1; without it the last corner repeats the first.
// Rows and columns leave the coordinates of the other axis alone.
struct Reference {
    Shape shape = Shape::cells;
    bool range = false;
    Coordinate first_row;
    Coordinate first_column;
    Coordinate last_row;
    Coordinate last_column;

    bool operator==(const Reference&) const = default;

    [[nodiscard]] bool has_rows() const { return shape != Shape::columns; }
    [[nodiscard]] bool has_columns() const { return shape != Shape::rows; }
};

// What becomes of a relative reference that leaves the sheet: a fill loses it (#REF!), while shared formulas in files
// and R1C1 text go round to the other end.
enum class OffSheet : std::uint8_t { lose, wrap };

// Moves the relative coordinates of an A1 reference. Corners that pass each other change places, and each takes its $
// along. Nothing when a coordinate leaves the sheet and is lost.
[[nodiscard]] std::optional<Reference> moved(Reference reference, std::int64_t rows, std::int64_t columns,
                                             OffSheet off_sheet);

// Puts the corners in order, first row above last and first column left of last; each takes its $ along.
void sort_corners(Reference& reference);

// The cells of a reference whose coordinates are all positions, corners in order.
[[nodiscard]] Area area_of(const Reference& reference);

// From positions to distances from the base cell, and back; absolute coordinates stay as they are.
// A distance that leaves the sheet goes round to its other end, as it does in Excel.
[[nodiscard]] Reference to_distances(Reference reference, Position base);
[[nodiscard]] Reference to_positions(Reference reference, Position base);

}  // namespace kestrune::formula
