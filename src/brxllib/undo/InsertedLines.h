#pragma once

#include <string>
#include <vector>

#include "automation/Value.h"
#include "brxllib/undo/Change.h"
#include "excel/Application.h"

namespace kestrune::brxllib::undo {

// Whole rows, or whole columns, that come in before some of the same kind. They go again as long as they hold what they
// held when the step ended.
class InsertedLines final : public Change {
  public:
    // `before`: as many rows (columns) as are to come in, in front of each of their areas.
    InsertedLines(excel::Application application, excel::Range before, bool rows);

    bool finish() override;
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction direction) const override;
    void undo() override;
    void redo() override;
    [[nodiscard]] std::size_t bytes() const override;

  private:
    void find_inserted();
    // What each inserted area shows of the used range, as formulas; Empty outside it.
    [[nodiscard]] std::vector<automation::Value> contents() const;

    excel::Application application_;
    excel::Range origin_;  // moves along with its cells
    bool rows_;
    std::string address_;  // of the origin, while nothing is inserted
    excel::Range inserted_;
    std::string inserted_address_;
    std::vector<automation::Value> contents_;
};

}  // namespace kestrune::brxllib::undo
