#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "brxllib/undo/snapshot/Reading.h"
#include "excel/Range.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// What an area of a facet's record stands for.
enum class Place : std::uint8_t {
    Cells,
    LeftEdge,  // the lines along one side of these cells
    RightEdge,
    TopEdge,
    BottomEdge,
    InsideVertical,    // column b means the line between columns b - 1 and b
    InsideHorizontal,  // row b means the line between rows b - 1 and b
    Rows,              // whole rows; the columns say nothing
    Columns,
};

// One respect in which cells can differ, and which is written in one go.
struct Facet {
    std::string_view name;  // for a person: "Font.Bold"
    Place place;
    // What all these cells have; nothing when they differ.
    std::optional<Reading> (*read)(const excel::Range& cells);
    // Gives them what was read. Fails as Excel does.
    void (*write)(const excel::Range& cells, const Reading& reading);
};

// The named style comes first: writing it gives cells everything that it says.
[[nodiscard]] std::span<const Facet> format_facets();
// The name of the fill's facet, and whether what it read is a gradient.
inline constexpr std::string_view fill_facet = "Interior";
[[nodiscard]] bool is_gradient(const Reading& fill);
// Number formats alone, which writing contents may change.
[[nodiscard]] std::span<const Facet> number_format_facet();
// Hidden or shown comes before the heights and widths, which only shown rows and columns tell.
[[nodiscard]] std::span<const Facet> row_facets();
[[nodiscard]] std::span<const Facet> column_facets();

// The area in a facet's own terms that an area of cells has; nothing where there is none, as between the columns of a
// single one.
[[nodiscard]] std::optional<formula::Area> place_in(Place place, const formula::Area& cells);
// The cells to ask about an area in a facet's own terms.
[[nodiscard]] formula::Area cells_of(Place place, const formula::Area& area);

}  // namespace kestrune::brxllib::undo
