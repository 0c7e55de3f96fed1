#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "brxllib/undo/snapshot/ContentBlock.h"
#include "brxllib/undo/snapshot/Pieces.h"
#include "brxllib/undo/snapshot/Restoring.h"

namespace kestrune::brxllib::undo {

// What the cells of an area hold: values, formulas, array formulas.
class ContentRecord {
  public:
    static ContentRecord take(const excel::Worksheet& sheet, const std::vector<Piece>& pieces, Budget& budget);

    // Whether a cell of the pieces that were blank holds something. used: the used cells now.
    static bool any_beyond(const excel::Worksheet& sheet, const std::vector<Piece>& pieces, const formula::Area& used);

    // May change number formats on the way, which have to be given back afterwards.
    void restore(const std::vector<Piece>& pieces, Restoring& restoring) const;

    [[nodiscard]] std::size_t bytes() const;
    bool operator==(const ContentRecord& other) const;

  private:
    struct ArrayFormula {
        formula::Area area;
        std::string formula;  // A1, with "="
        bool operator==(const ArrayFormula&) const = default;
    };
    // How to enter what a cell does not take as it stands.
    enum class Way : std::uint8_t { Plain, Formatted, Quoted };

    void read_block(const excel::Worksheet& sheet, const formula::Area& area, Budget& budget);
    void find_arrays(const excel::Worksheet& sheet, const formula::Area& area, Budget& budget);
    [[nodiscard]] bool holds(const ArrayFormula& array) const;
    void clear_other_arrays(const ContentRecord& now, Restoring& restoring) const;
    void enter_arrays(const ContentRecord& now, Restoring& restoring) const;
    // Whether a cell of a block holds something else now.
    [[nodiscard]] bool differs(std::size_t block, std::size_t place, const ContentRecord& now, bool quotes_count) const;
    // Writes the cells that differ. Whether there were any, and Excel took all that was written.
    bool enter(const ContentRecord& now, Way way, Restoring& restoring) const;
    void tell_differences(const ContentRecord& now, Restoring& restoring) const;

    TextPool texts_;
    std::vector<ContentBlock> blocks_;
    std::vector<ArrayFormula> arrays_;
    std::vector<formula::Area> spilled_;  // while it is taken
};

}  // namespace kestrune::brxllib::undo
