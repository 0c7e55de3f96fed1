#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "brxllib/undo/Change.h"
#include "brxllib/undo/Snapshot.h"

namespace kestrune::brxllib::undo {

// Whatever happens to some cells of one sheet, as their state before and after it.
class CellsChange final : public Change {
  public:
    // before: the cells as they are now. most_bytes: what the record of their later state may hold. The trace outlives
    // the change.
    CellsChange(Snapshot before, std::size_t most_bytes, const automation::Trace& trace)
        : before_(std::move(before)), most_bytes_(most_bytes), trace_(trace) {}

    bool finish() override;
    // Lasting when the sheet has gone, rows or columns came or went, or somebody changed the cells.
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction direction) const override;
    void undo() override { give_back(before_, *after_); }
    void redo() override { give_back(*after_, before_); }
    [[nodiscard]] std::size_t bytes() const override;

  private:
    void give_back(const Snapshot& wanted, const Snapshot& present) const;

    Snapshot before_;
    std::optional<Snapshot> after_;  // nothing until the step ends, and when it would hold too much
    std::size_t most_bytes_;
    const automation::Trace& trace_;
};

}  // namespace kestrune::brxllib::undo
