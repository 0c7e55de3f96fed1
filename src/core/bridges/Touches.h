#pragma once

#include <cstdint>

namespace kestrune::core {

// What a command may change of the cells that it reaches, under the numbers of the spreadsheet library's undo.
enum class Aspects : std::int32_t {
    None = 0,
    Contents = 1,    // values and formulas
    Formats = 2,     // of cells
    Conditions = 4,  // conditional formats
    Merges = 8,
    Rows = 16,            // heights, hidden or shown, outline levels
    Columns = 32,         // the same of columns
    Names = 64,           // the workbook's defined names
    NumberFormats = 128,  // custom number formats that nothing shows
    Filled = 256,         // none of these, but that each cell reached may be filled: many are asked about first
};
constexpr Aspects operator|(Aspects one, Aspects other) {
    return static_cast<Aspects>(static_cast<std::int32_t>(one) | static_cast<std::int32_t>(other));
}

// The cells that a command reaches.
enum class Reach : std::int32_t {
    Recorded = 0,   // those that its body has recorded while it runs
    Selection = 1,  // with its whole rows and columns where rows and columns change
    Sheet = 2,      // the active one
    Workbook = 3,   // every worksheet of the active one
    Nothing = -1,   // it changes no workbook
    Lasting = -2,   // it changes what cannot be given back, and says so itself
};

// What undo has to have on record before a command runs.
struct Touches {
    Reach reach = Reach::Nothing;
    Aspects aspects = Aspects::None;

    [[nodiscard]] constexpr bool changes_workbook() const { return reach != Reach::Nothing; }
    [[nodiscard]] constexpr bool undoable() const { return changes_workbook() && reach != Reach::Lasting; }
};

}  // namespace kestrune::core
