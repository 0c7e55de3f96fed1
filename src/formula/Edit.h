#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "formula/Reference.h"

namespace kestrune::formula {

// Whole rows or columns that are inserted into a sheet, or deleted from it.
struct Edit {
    enum class Kind : std::uint8_t { insert_rows, delete_rows, insert_columns, delete_columns };

    Kind kind = Kind::insert_rows;
    std::string sheet;       // where it happens
    std::int32_t first = 1;  // the first row or column inserted or deleted, 1-based
    std::int32_t count = 1;  // how many; at least 1

    [[nodiscard]] bool inserts() const { return kind == Kind::insert_rows || kind == Kind::insert_columns; }
    [[nodiscard]] bool of_rows() const { return kind == Kind::insert_rows || kind == Kind::delete_rows; }
};

// Where the cells of an area on the edited sheet are afterwards; nothing when all of them are gone. Cells pushed off
// the sheet's end are gone, too. An area over all rows stays one when rows come and go, and so with columns.
[[nodiscard]] std::optional<Area> adjust_area(const Area& area, const Edit& edit);

// The formula of a cell, or the reference of a name, as it reads after the edit: references to the edited sheet move,
// stretch and shrink, and become #REF! when nothing is left of them; $ plays no part. References to other sheets, to
// other workbooks and through several sheets (Jan:Mar!A1) stay. `own_sheet` is the sheet that holds the formula.
[[nodiscard]] std::string adjust_for_edit(std::string_view formula, std::string_view own_sheet, const Edit& edit);

}  // namespace kestrune::formula
