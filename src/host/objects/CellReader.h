#pragma once

#include <string>
#include <unordered_map>

#include "automation/Value.h"
#include "host/objects/CellRange.h"
#include "number_format/NumberFormat.h"

namespace kestrune::host {

using number_format::NumberFormat;

// Reads cells as the object model shows them: values, formulas and texts. Number formats are taken apart
// once, however many cells have them.
class CellReader {
  public:
    explicit CellReader(const CellRange& cells) : cells_(cells) {}

    enum class Dates { AsDates, AsNumbers };

    [[nodiscard]] automation::Value value(const Cell& cell, Dates dates);
    // "=A1+1", or a constant as the formula bar shows it; "" for a blank cell.
    [[nodiscard]] std::string formula(Position at, const Cell& cell);
    [[nodiscard]] std::string formula_r1c1(Position at, const Cell& cell);
    // As the sheet shows it, cut to nothing: the width of the column plays no part.
    [[nodiscard]] std::string text(const Cell& cell);
    [[nodiscard]] const NumberFormat& number_format(StyleId style);

  private:
    [[nodiscard]] std::string constant_text(const Cell& cell) const;
    [[nodiscard]] const std::string& string_of(const Cell& cell) const;

    const CellRange& cells_;
    std::unordered_map<std::uint32_t, NumberFormat> formats_;  // by their number
};

}  // namespace kestrune::host
