#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "automation/Trace.h"
#include "automation/Value.h"
#include "brxllib/undo/Change.h"
#include "brxllib/undo/Snapshot.h"

namespace kestrune::brxllib::undo {

// Whole rows, or whole columns, that come in before some of the same kind. They go again as long as they hold what they
// held when the step ended. What they pushed off the sheet's end comes back, formats, sizes and merged areas, and the
// sheet's conditional formats are as they were.
class InsertedLines final : public Change {
  public:
    // Records before they come. `before`: as many rows (columns) as are to come in, in front of each of their areas.
    // Nothing when the record would hold more than most_bytes. The trace outlives the change.
    static std::unique_ptr<InsertedLines> take(const excel::Application& application, const excel::Range& before,
                                               bool rows, std::size_t most_bytes, const automation::Trace& trace);

    bool finish() override;
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction direction) const override;
    void undo() override;
    void redo() override;
    void visit_cells(const VisitHeldCells& visit) const override;
    [[nodiscard]] DisplacedCells* displaces(Direction direction) override {
        return direction == Direction::Undo ? &gone_ : &moved_;
    }
    [[nodiscard]] excel::Range shown(Direction direction) const override;
    [[nodiscard]] std::size_t bytes() const override;

  private:
    InsertedLines(excel::Application application, const excel::Range& before, bool rows, std::size_t most_bytes,
                  const automation::Trace& trace);
    [[nodiscard]] Aspects looks() const;
    // What the insertion pushes off; false when that is too much.
    bool record_end();
    // They are in.
    void settle();
    // What each inserted area shows of the used range, as formulas; Empty when all of it is blank.
    [[nodiscard]] std::vector<automation::Value> contents() const;

    excel::Application application_;
    bool rows_;
    std::size_t most_bytes_;
    const automation::Trace& trace_;
    std::vector<formula::Area> areas_;   // of the origin, while nothing is inserted
    std::vector<formula::Area> places_;  // of what is inserted
    HeldCellsRef origin_;
    HeldCellsRef inserted_;
    std::vector<automation::Value> contents_;
    formula::Area end_;                  // the lines that are pushed off
    std::optional<Snapshot> end_state_;  // how they were
    std::optional<Snapshot> lying_;      // of the whole sheet, where something lies on it
    std::optional<Snapshot> lying_after_;
    std::optional<Snapshot> looks_;  // of what came in, once undone
    DisplacedCells gone_;
    DisplacedCells moved_;
};

}  // namespace kestrune::brxllib::undo
