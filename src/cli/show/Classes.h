#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "automation/Trace.h"
#include "brxllib/autocolor/ClassReader.h"

namespace kestrune::cli {

// How a class of cells is told to a person.
struct ClassLook {
    char mark;              // one letter beside the cell's text
    std::string_view name;  // in a sentence and in JSON
    std::uint32_t fill;     // BGR, light: the cell's text is black on it
};

// Of every class, in the order of brxllib::CellClass.
inline constexpr std::array<ClassLook, brxllib::cell_class_count> class_looks{{
    {' ', "empty", 0xFFFFFF},
    {'t', "text", 0xF4F4F4},
    {'d', "date", 0xC8EEFD},
    {'i', "input", 0xFFDDC4},
    {'f', "formula", 0xD9D9D9},
    {'p', "partial input", 0xF3CDE0},
    {'s', "sheet link", 0xC6EBC9},
    {'w', "workbook link", 0xC4C4FF},
    {'h', "hyperlink", 0xF5F0B8},
}};

inline const ClassLook& look_of(brxllib::CellClass cell) { return class_looks[static_cast<std::size_t>(cell)]; }

// What the cells of an area hold, as AutoColor sees them.
class Classes {
  public:
    // rules: what counts as a link, and the colours. Fails with AutomationError when the sheet cannot be read.
    Classes(const excel::Worksheet& sheet, const formula::Area& area, const brxllib::AutoColorSettings& rules);

    [[nodiscard]] const formula::Area& area() const { return block_.area; }
    // Of a cell of the area; Empty outside of it.
    [[nodiscard]] brxllib::CellClass at(formula::Position position) const;
    // What AutoColor makes of a class's fonts, BGR; nothing for those that keep their colours.
    [[nodiscard]] std::optional<std::int32_t> color(brxllib::CellClass cell) const { return color_of(cell, rules_); }
    [[nodiscard]] std::int64_t count(brxllib::CellClass cell) const { return counts_[static_cast<std::size_t>(cell)]; }

  private:
    brxllib::ClassBlock block_;
    brxllib::AutoColorSettings rules_;
    std::array<std::int64_t, brxllib::cell_class_count> counts_{};
};

std::string count_and_color(const Classes& classes, brxllib::CellClass cell);

// Calls act with every class that the area holds cells of, and how many and which colour they get: "20 #0000FF".
template <class Act>
void for_each_class(const Classes& classes, Act&& act) {
    for (std::size_t i = 1; i < class_looks.size(); ++i) {
        const auto cell = static_cast<brxllib::CellClass>(i);
        if (classes.count(cell) > 0) act(class_looks[i], count_and_color(classes, cell));
    }
}

}  // namespace kestrune::cli
