#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "brxllib/undo/HeldCells.h"

namespace kestrune::brxllib::undo {

enum class Direction : std::uint8_t { Undo, Redo };

// Why a change cannot be taken back, or done again, now.
struct Obstacle {
    std::string why;       // one clause for a person, without a full stop: "the sheet has been deleted"
    bool lasting = false;  // nobody can remove it: the step that holds the change is given up
};

// One thing that a step does to a workbook, as long as undo remembers it. Made before the thing is done; finished when
// it is, which is when the step ends or makes another change. Changes of a step are undone from the last to the first
// and redone from the first to the last, so each is asked and moved with the cells as it left them, or found them.
class Change {
  public:
    Change() = default;
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;
    virtual ~Change() = default;

    // What it is about has happened: the step ends, or goes on with another change. Takes in what redo needs. False
    // when nothing changed; then the change is forgotten.
    virtual bool finish() { return true; }

    // What stands in the way now: a sheet that is gone or protected, cells that somebody changed since. Changes
    // nothing. May fail as Excel does, which is an obstacle, too.
    [[nodiscard]] virtual std::optional<Obstacle> obstacle(Direction direction) const = 0;

    // Takes the change back, or does it again. Fails with AutomationError where Excel refuses, and has put back what
    // was there when it does.
    virtual void undo() = 0;
    virtual void redo() = 0;

    // The cells that it speaks of.
    virtual void visit_cells(const VisitHeldCells& visit) const = 0;
    // Where the cells of all changes are before it moves in a direction (Redo is how it happens at first), when rows or
    // columns come or go by it; else null.
    [[nodiscard]] virtual DisplacedCells* displaces(Direction) { return nullptr; }
    // What a person wants to see once it has moved, as Excel's own undo selects it; nothing when it has no such cells.
    [[nodiscard]] virtual excel::Range shown(Direction) const { return {}; }

    // What it holds in memory.
    [[nodiscard]] virtual std::size_t bytes() const = 0;
};

}  // namespace kestrune::brxllib::undo
