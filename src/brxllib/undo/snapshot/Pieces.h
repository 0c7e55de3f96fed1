#pragma once

#include <vector>

#include "excel/Worksheet.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// A part of an area that is recorded by itself.
struct Piece {
    formula::Area cells;
    bool used = false;  // reaches no further than the used cells
    // Blank cells beyond the used ones show what their whole columns, or whole rows, have. They are given back together
    // with the used cells of these, which are seen to afterwards: so no blank cell gets a format of its own.
    bool of_columns = false;
    bool of_rows = false;
};

// From A1 to the last used cell of a sheet.
[[nodiscard]] formula::Area used_area(const excel::Worksheet& sheet);

// Areas cut into the used cells and the blank ones beyond, whole columns first, used cells last.
[[nodiscard]] std::vector<Piece> pieces_of(const std::vector<formula::Area>& areas, const formula::Area& used);

}  // namespace kestrune::brxllib::undo
