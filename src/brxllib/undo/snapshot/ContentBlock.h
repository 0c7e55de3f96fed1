#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "automation/Value.h"
#include "brxllib/undo/snapshot/Budget.h"
#include "excel/Range.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// Texts and formulas, each once. Formulas are kept in R1C1: filled down, they are the same text.
class TextPool {
  public:
    std::uint32_t intern(const std::string& text, Budget& budget);
    [[nodiscard]] const std::string& operator[](std::uint32_t place) const { return *texts_[place]; }
    [[nodiscard]] std::size_t bytes() const;

  private:
    std::unordered_map<std::string, std::uint32_t> places_;
    std::vector<const std::string*> texts_;  // the map's keys stay where they are
};

// What the cells of a rectangle hold, nine bytes a cell.
class ContentBlock {
  public:
    enum class Kind : std::uint8_t {
        Empty,
        Number,
        Boolean,
        Error,
        Text,
        QuotedText,  // entered with an apostrophe in front
        Formula,     // its result plays no part
        Elsewhere,   // part of an array formula, which is on record by itself
        Spilled,     // shows what a formula elsewhere spills over it, and holds nothing
    };

    ContentBlock() = default;
    // Reads the cells of an area that fits an array. quoted: what an apostrophe in front says (PrefixCharacter).
    static ContentBlock read(const excel::Range& range, const formula::Area& area, TextPool& texts, Budget& budget);

    [[nodiscard]] const formula::Area& area() const { return area_; }
    [[nodiscard]] std::size_t place_of(formula::Position at) const {
        return static_cast<std::size_t>(at.row - area_.first_row) * static_cast<std::size_t>(area_.columns()) +
               static_cast<std::size_t>(at.column - area_.first_column);
    }
    [[nodiscard]] Kind kind(std::size_t place) const { return kinds_.empty() ? Kind::Empty : kinds_[place]; }
    [[nodiscard]] bool any() const { return !kinds_.empty(); }  // whether any cell holds something
    [[nodiscard]] bool holds_texts() const;
    // Marks cells as Elsewhere or Spilled.
    void cover(const formula::Area& cells, Kind with);
    // Marks the texts of an area as entered with an apostrophe.
    void mark_quoted(const formula::Area& cells);

    // Whether a cell holds the same as one of another block, whose texts lie in another pool.
    [[nodiscard]] bool same(std::size_t place, const TextPool& texts, const ContentBlock& other, std::size_t there,
                            const TextPool& others) const;
    // What to enter into a cell so that it holds this.
    [[nodiscard]] automation::Value entry(std::size_t place, const TextPool& texts) const;
    [[nodiscard]] std::string_view text(std::size_t place, const TextPool& texts) const;  // of texts and formulas

    [[nodiscard]] std::size_t bytes() const {
        return sizeof(ContentBlock) + kinds_.capacity() + held_.capacity() * sizeof(Held);
    }

  private:
    union Held {
        double number = 0;
        bool boolean;
        std::int32_t error;
        std::uint32_t text;
    };
    void fill();

    formula::Area area_;
    std::vector<Kind> kinds_;  // row by row; without any, all cells are empty
    std::vector<Held> held_;
};

}  // namespace kestrune::brxllib::undo
