#pragma once

#include <memory>
#include <string>
#include <vector>

#include "automation/Trace.h"
#include "brxllib/undo/Change.h"
#include "brxllib/undo/Snapshot.h"
#include "excel/Workbook.h"

namespace kestrune::brxllib::undo {

// Whole rows, or whole columns, that go: what they hold, and what the rest of the open workbooks loses with them, in
// formulas, names, merged areas and conditional formats.
class DeletedLines final : public Change {
  public:
    // Records before they go. Nothing when the record would hold more than most_bytes. The trace outlives the change.
    static std::unique_ptr<DeletedLines> take(const excel::Application& application, const excel::Range& lines,
                                              bool rows, std::size_t most_bytes, const automation::Trace& trace);

    // What could not be given back, each a clause for a person.
    [[nodiscard]] std::vector<std::string> irreplaceable() const;

    bool finish() override;
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction direction) const override;
    void undo() override;
    void redo() override;
    void visit_cells(const VisitHeldCells& visit) const override;
    [[nodiscard]] DisplacedCells* displaces(Direction direction) override {
        return direction == Direction::Redo ? &gone_ : &moved_;
    }
    [[nodiscard]] excel::Range shown(Direction direction) const override;
    [[nodiscard]] std::size_t bytes() const override;

  private:
    // Cells whose place tells whether lines came or went by hand since.
    struct Mark {
        HeldCellsRef cells;
        std::optional<std::vector<formula::Area>> after{};  // once the lines are gone
    };
    // A formula elsewhere that a deletion and an insertion do not leave as it was.
    struct Formula {
        formula::Position at;        // before the deletion
        formula::Position at_after;  // once the lines are gone
        std::string before;          // with "="
        std::string after;
    };
    struct Elsewhere {
        Mark around;  // from the sheet's first cell to the last of the formulas
        std::vector<Formula> formulas;
    };

    DeletedLines(excel::Application application, const excel::Range& lines, bool rows, std::size_t most_bytes,
                 const automation::Trace& trace);
    // Everything as it is before the deletion; false when that is too much.
    bool record();
    void record_elsewhere(const excel::Workbook& workbook, const std::string& book);
    [[nodiscard]] HeldCellsRef held(const excel::Worksheet& sheet, const std::vector<formula::Area>& areas) const;
    [[nodiscard]] bool at_end(const formula::Area& area) const;
    [[nodiscard]] std::vector<Mark*> marks();
    [[nodiscard]] std::optional<std::string> changed_elsewhere() const;

    excel::Application application_;
    excel::Worksheet sheet_;
    bool rows_;
    std::size_t most_bytes_;
    const automation::Trace& trace_;
    std::vector<formula::Area> areas_;  // as they were, ascending, none touching another
    bool whole_sheet_;
    Mark beside_;                             // lines next to each area
    std::vector<formula::Area> beside_gone_;  // where those are once the areas are gone
    Mark used_;                               // the used range and what borders on it
    std::optional<Snapshot> cells_;           // what the lines hold
    std::optional<Snapshot> lying_;           // of the whole sheet
    std::optional<Snapshot> lying_after_;
    std::vector<Elsewhere> elsewhere_;
    DisplacedCells gone_;
    DisplacedCells moved_;
};

}  // namespace kestrune::brxllib::undo
