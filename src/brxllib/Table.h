#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formula/Area.h"

namespace kestrune::brxllib {

// A table of a worksheet, as structured references speak of it.
struct Table {
    std::string name;
    std::string sheet;
    formula::Area all;  // headers and totals included
    bool headers = true;
    bool totals = false;
    std::vector<std::string> columns;  // from left to right; empty when the headers are hidden

    // The rows between headers and totals.
    [[nodiscard]] formula::Area body() const;
};

// The cells that a structured reference means, given what follows the table's name: "[Sales]", "[[#Totals],[Sales]]",
// "[@[Net]:[Gross]]". row: where the formula stands, for the parts that mean its own row. Nothing when a column or part
// is not there.
[[nodiscard]] std::optional<formula::Area> cells_of_structured(const Table& table, std::string_view specifier,
                                                               std::int32_t row);

}  // namespace kestrune::brxllib
