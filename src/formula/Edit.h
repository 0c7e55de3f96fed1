#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formula/Reference.h"

namespace kestrune::formula {

// Whole rows or columns that are inserted into a sheet, or deleted from it.
struct Edit {
    enum class Kind : std::uint8_t { insert_rows, delete_rows, insert_columns, delete_columns };

    Kind kind = Kind::insert_rows;
    std::string sheet;       // where it happens
    std::int32_t first = 1;  // the first row or column inserted or deleted, 1-based
    std::int32_t count = 1;  // how many; at least 1
    // How formulas of another workbook call the one that is edited: "1", "Model.xlsx", "C:\\models\\Model.xlsx". Empty
    // for formulas of the edited workbook itself.
    std::vector<std::string> books{};

    [[nodiscard]] bool inserts() const { return kind == Kind::insert_rows || kind == Kind::insert_columns; }
    [[nodiscard]] bool of_rows() const { return kind == Kind::insert_rows || kind == Kind::delete_rows; }
};

// Where the cells of an area on the edited sheet are afterwards; nothing when all of them are gone. Cells pushed off
// the sheet's end are gone, too. An area over all rows stays one when rows come and go, and so with columns.
[[nodiscard]] std::optional<Area> adjust_area(const Area& area, const Edit& edit);

// Where a cell stands afterwards; nothing when it is gone.
[[nodiscard]] std::optional<Position> adjust_position(Position at, const Edit& edit);
// What is left of several areas, in their order.
[[nodiscard]] std::vector<Area> adjust_areas(const std::vector<Area>& areas, const Edit& edit);

// The formula of a cell as it reads after the edit: references to the edited sheet move, stretch and shrink, and become
// #REF! when nothing is left of them; $ plays no part. References to other sheets, to other workbooks and through
// several sheets (Jan:Mar!A1) stay. `own_sheet` is the sheet that holds the formula.
[[nodiscard]] std::string adjust_for_edit(std::string_view formula, std::string_view own_sheet, const Edit& edit);

// What a name refers to. Its relative references count from the cell that uses the name, so they keep their distance.
[[nodiscard]] std::string adjust_name_for_edit(std::string_view refers_to, const Edit& edit);

// A condition's or validation's formula, which is written for the corner of its areas and counts from each of their
// cells. Where these disagree about what becomes of it, most of them decide. `areas` are those before the edit;
// the result is written for the corner of what the edit leaves of them.
[[nodiscard]] std::string adjust_rule_for_edit(std::string_view formula, std::string_view own_sheet,
                                               const std::vector<Area>& areas, const Edit& edit);

// The top-left corner of all areas together.
[[nodiscard]] Position corner_of(const std::vector<Area>& areas);

// Whether a reference behind `prefix` ("", "Sheet1!", "[1]Sheet1!") in a formula of `own_sheet` is one to the edited
// sheet.
[[nodiscard]] bool means_edited_sheet(std::string_view prefix, std::string_view own_sheet, const Edit& edit);

// Whether two paths name one file. A name without a folder is that of any file so called, as Excel opens one only.
[[nodiscard]] bool same_file(std::string_view one, std::string_view other);

// First and last row or column along the edited axis afterwards; false when nothing is left.
[[nodiscard]] bool adjust_span(std::int32_t& first, std::int32_t& last, const Edit& edit);

}  // namespace kestrune::formula
