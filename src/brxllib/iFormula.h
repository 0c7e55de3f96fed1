#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "automation/MemberTable.h"

namespace kestrune::brxllib {

// Formulas as texts.
class iFormula : public automation::Served<iFormula> {
  public:
    static const automation::MemberTable& members();

  private:
    // How the first reference of an A1 formula is anchored, Empty when it has none, and the formula with all of them
    // anchored so: 0 to 3, see FormulaAnchors.h.
    [[nodiscard]] automation::Value anchor_of(const std::string& formula) const;
    [[nodiscard]] std::string anchored(const std::string& formula, std::int32_t anchor) const;

    // The R1C1 formula with its relative references pointing so many rows further down and columns further right
    // (negative: up, left), on whatever sheet they are; absolute references and everything else stay. Given the cell
    // (row and column, from 1) that the formula is for, a reference pushed off the sheet becomes #REF!; without it
    // there is no telling, and Excel lets such a reference go round to the sheet's other end.
    [[nodiscard]] std::string shift(const std::string& formula, std::int32_t rows, std::int32_t columns,
                                    std::optional<std::int32_t> row, std::optional<std::int32_t> column) const;
};

}  // namespace kestrune::brxllib
