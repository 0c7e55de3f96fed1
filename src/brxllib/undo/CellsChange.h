#pragma once

#include <vector>

#include "brxllib/undo/Change.h"
#include "brxllib/undo/Snapshot.h"

namespace kestrune::brxllib::undo {

// Whatever happens to some cells while they stay where they are, as their states before and after it. Recorded cells
// may overlap: each record is as of its own moment.
class CellsChange final : public Change {
  public:
    // most_bytes: what the record of the later state of some cells may hold. The trace outlives the change.
    CellsChange(std::size_t most_bytes, const automation::Trace& trace) : most_bytes_(most_bytes), trace_(trace) {}

    // Some cells as they are now, before anything else happens to them.
    void add(Snapshot before) { cells_.push_back({std::move(before), {}, {}}); }

    bool finish() override;
    // Lasting when the sheet has gone, rows or columns came or went, or somebody changed the cells.
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction direction) const override;
    void undo() override;
    void redo() override;
    void visit_cells(const VisitHeldCells& visit) const override;
    [[nodiscard]] std::size_t bytes() const override;

  private:
    struct Cells {
        Snapshot before;
        std::optional<Snapshot> after;  // nothing until the step ends, and when it would hold too much
        // As the step, its undo or redo left them. Recorded anew, since a later record may overlap this one.
        std::optional<Snapshot> present;
    };
    using List = std::vector<Cells>;
    using Wanted = const Snapshot& (*)(const Cells& cells);

    template <class Order>
    void give_back(const Order& cells, Wanted wanted);
    [[nodiscard]] std::string obstacle_of(const Cells& cells) const;

    List cells_;
    std::size_t most_bytes_;
    const automation::Trace& trace_;
};

}  // namespace kestrune::brxllib::undo
