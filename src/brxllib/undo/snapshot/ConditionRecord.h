#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "brxllib/undo/snapshot/Budget.h"
#include "brxllib/undo/snapshot/ConditionState.h"
#include "brxllib/undo/snapshot/Restoring.h"

namespace kestrune::brxllib::undo {

// The conditional formats that hold for any cell of an area, with all the cells that they hold for.
class ConditionRecord {
  public:
    static ConditionRecord take(const excel::Range& range, Budget& budget, const automation::Trace& trace);

    // Rules that are still there, for however few cells, get their cells back, so that nothing of them is lost; the
    // others are made anew.
    void restore(const excel::Range& range, Restoring& restoring) const;

    // Adds a line for every rule that could not be made anew: those that hold for cells of these areas only.
    void tell_irreplaceable(const std::vector<formula::Area>& areas, std::vector<std::string>& lines) const;

    [[nodiscard]] std::size_t bytes() const;
    bool operator==(const ConditionRecord&) const = default;

  private:
    std::vector<ConditionState> rules_;  // in the order in which they are tried
};

}  // namespace kestrune::brxllib::undo
