#pragma once

#include <functional>
#include <optional>
#include <string>

#include "brxllib/Links.h"
#include "brxllib/OpenBook.h"

namespace kestrune::brxllib {

// A cell that a scan of a sheet comes by.
struct ScannedFormula {
    const std::string& text;  // begins with "="
    formula::Position at;
    const std::function<bool()>& is_formula;  // false for a text that merely begins like one; asks Excel once a block
};

// Shows each cell of a sheet whose formula text begins with "=", row by row. Read in blocks: a few calls a sheet.
void scan_formulas(const excel::Worksheet& sheet, const std::function<void(const ScannedFormula&)>& visit);

// The cells of one rectangle.
[[nodiscard]] formula::Area area_of(const excel::Range& range);

// Where the spilled range that a cell belongs to begins.
[[nodiscard]] std::optional<formula::Position> spill_anchor(const excel::Range& cell);

// The link to a formula by the words of it that refer (their place in bytes), through a name or table or directly.
[[nodiscard]] Link link_to_formula(const OpenBook& book, const std::string& sheet, formula::Position at,
                                   const std::string& formula, std::size_t offset, std::size_t length,
                                   std::string through);

}  // namespace kestrune::brxllib
