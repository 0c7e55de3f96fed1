#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "formula/Edit.h"
#include "host/model/Sheet.h"
#include "host/xlsx/SheetLayout.h"

namespace kestrune::host {

// A worksheet's XML with its rows, cells and places where edits have moved them, as if the file had always been so.
// Formulas and values of cells, merged areas and columns are as they were: they are written from the sheet. Whatever
// nobody models is carried along.
struct MovedSheet {
    std::string text;
    SheetLayout layout;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> cells;  // where each cell's element began, and begins; sorted
    std::optional<std::uint32_t> shift;                          // instead: by how much all of them moved, modulo 2^32
    std::vector<std::pair<std::string, std::string>> rules;  // elements of conditional formats that read differently
};

// `has_table` tells whether a table's relationship is still there.
struct SheetToMove {
    std::string_view text;
    const SheetLayout& layout;
    std::string name;
    std::string file;  // for messages, as the part
    std::string part;
    std::function<bool(const std::string& relationship)> has_table;
};
[[nodiscard]] MovedSheet move_sheet(const SheetToMove& sheet, std::span<const formula::Edit> edits);

// Lets the sheet's cells and rules know their new places in the text.
void take_places(Sheet& sheet, const MovedSheet& moved);

// What of a worksheet's XML cannot follow an edit of its sheet, as a clause for a person; empty when all can.
[[nodiscard]] std::string unmovable_in(std::string_view text, const SheetLayout& layout);

}  // namespace kestrune::host
