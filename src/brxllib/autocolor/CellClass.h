#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "automation/Value.h"
#include "brxllib/autocolor/NameMeanings.h"
#include "brxllib/autocolor/Settings.h"

namespace kestrune::brxllib {

// What a cell holds, for AutoColor; of several that fit, the first:
//
//   Hyperlink     a link made with Insert Link, or a formula with HYPERLINK()
//   WorkbookLink  a formula that takes from another workbook or program: [Book.xlsx]S!A1, a name for such cells, DDE
//   SheetLink     ... from another sheet: S!A1, S1:S3!A1, a name or a table of another sheet
//   PartialInput  ... with cells or names in it and a number that somebody assumed (holds_hard_coded_number): =A1*1.05
//   Formula       any other formula
//   Input         a number, a truth value or an error that was typed; a formula of constants: =5+3, =DATE(2026,1,31)
//   Date          a date or time that was typed
//   Text          a text that was typed, or a formula of texts alone: ="Total"
//   Empty         nothing
//
// A link says more than the numbers beside it: =Inputs!B5*12 is a SheetLink. A formula of constants that looks up
// where or when it is (ROW, TODAY, INDIRECT ...) is a Formula, or a PartialInput when it holds a number. A reference to
// the formula's own sheet by its name is no link; a table of another sheet is one.
enum class CellClass : std::uint8_t {
    Empty,
    Text,
    Date,
    Input,
    Formula,
    PartialInput,
    SheetLink,
    WorkbookLink,
    Hyperlink,
};
inline constexpr std::size_t cell_class_count = 9;

// Of a cell without a formula and without a link.
[[nodiscard]] CellClass class_of_constant(const automation::Value& value);

// Of a formula in A1 and English, with or without its "=".
[[nodiscard]] CellClass class_of_formula(std::string_view formula, NameMeanings& names, bool hyperlinks);

// The colour that a class gets, BGR; nothing for one that keeps what it has.
[[nodiscard]] std::optional<std::int32_t> color_of(CellClass cell, const AutoColorSettings& settings);

}  // namespace kestrune::brxllib
