#pragma once

#include <cstdint>
#include <string>

#include "formula/Area.h"
#include "host/model/StyleTable.h"

namespace kestrune::host {

using formula::Area;
using formula::Position;

enum class CellKind : std::uint8_t { Blank, Number, Boolean, Error, String };

// Excel's error values, under the numbers of xlErr constants (2000 #NULL! ... 2042 #N/A).
enum class CellError : std::int32_t {
    Null = 2000,
    Div0 = 2007,
    Value = 2015,
    Ref = 2023,
    Name = 2029,
    Num = 2036,
    NA = 2042,
    GettingData = 2043,
    Spill = 2045,
    Connect = 2046,
    Blocked = 2047,
    Unknown = 2048,
    Field = 2049,
    Calc = 2050,
};

// One stored cell, small because there are millions. A position without one is blank and shows its
// row's, else its column's format.
struct Cell {
    static constexpr std::uint8_t content_changed = 1;  // value or formula differ from the file: written anew
    static constexpr std::uint8_t has_metadata = 2;     // the file gives it cm or vm (dynamic arrays, rich values)
    static constexpr std::uint8_t formula_moved = 4;    // its formula follows cells that moved; the rest is the file's
    static constexpr std::uint8_t unshared = 8;         // with formula_moved: no longer one with its group in the file

    union {
        double number = 0;
        bool boolean;
        CellError error;
        std::uint32_t string;  // position in the workbook's StringTable
    };
    std::int32_t row = 0;
    StyleId style = 0;
    std::uint32_t formula = 0;  // 0: none; else 1 + position in the sheet's formulas
    std::uint32_t source = 0;   // 0: not in the file; else 1 + byte offset of its element in the sheet's part
    CellKind kind = CellKind::Blank;
    std::uint8_t flags = 0;
};
static_assert(sizeof(Cell) == 32);

// A formula as stored, shared by all cells of a shared group. Text is without the leading "=".
struct Formula {
    enum class Kind : std::uint8_t { Normal, Shared, Array, DataTable };

    std::string text;
    Kind kind = Kind::Normal;
    Position anchor;         // Shared: the cell whose text this is; Array, DataTable: the top-left cell
    Area reach{};            // Shared, Array, DataTable: the cells it covers
    std::string attributes;  // DataTable and others: the element's attributes as they stood
};

}  // namespace kestrune::host
