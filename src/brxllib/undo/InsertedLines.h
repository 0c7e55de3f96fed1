#pragma once

#include <vector>

#include "automation/Value.h"
#include "brxllib/undo/Change.h"

namespace kestrune::brxllib::undo {

// Whole rows, or whole columns, that come in before some of the same kind. They go again as long as they hold what they
// held when the step ended.
class InsertedLines final : public Change {
  public:
    // `before`: as many rows (columns) as are to come in, in front of each of their areas.
    InsertedLines(excel::Application application, const excel::Range& before, bool rows);

    bool finish() override;
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction direction) const override;
    void undo() override;
    void redo() override;
    void visit_cells(const VisitHeldCells& visit) const override;
    [[nodiscard]] LostCells* loses(Direction direction) override {
        return direction == Direction::Undo ? &lost_ : nullptr;
    }
    [[nodiscard]] excel::Range shown(Direction direction) const override;
    [[nodiscard]] std::size_t bytes() const override;

  private:
    // What each inserted area shows of the used range, as formulas; Empty when all of it is blank.
    [[nodiscard]] std::vector<automation::Value> contents() const;

    excel::Application application_;
    bool rows_;
    std::vector<formula::Area> areas_;   // of the origin, while nothing is inserted
    std::vector<formula::Area> places_;  // of what is inserted
    HeldCellsRef origin_;
    HeldCellsRef inserted_;
    std::vector<automation::Value> contents_;
    LostCells lost_;
};

}  // namespace kestrune::brxllib::undo
