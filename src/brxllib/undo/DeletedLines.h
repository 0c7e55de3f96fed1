#pragma once

#include <memory>
#include <string>
#include <vector>

#include "automation/Trace.h"
#include "brxllib/undo/Change.h"
#include "brxllib/undo/Snapshot.h"
#include "excel/Application.h"
#include "excel/Worksheet.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// Whole rows, or whole columns, that go: what they hold, and what the rest of the open workbooks loses with them, in
// formulas, names, merged areas and conditional formats.
class DeletedLines final : public Change {
  public:
    // Records before they go. Nothing when the record would hold more than most_bytes. The trace outlives the change.
    static std::unique_ptr<DeletedLines> take(const excel::Application& application, const excel::Range& lines,
                                              bool rows, std::size_t most_bytes, const automation::Trace& trace);

    // What of the recorded cells could not be given back, each a clause for a person.
    [[nodiscard]] const std::vector<std::string>& irreplaceable() const { return irreplaceable_; }

    bool finish() override;
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction direction) const override;
    void undo() override;
    void redo() override;
    [[nodiscard]] std::size_t bytes() const override;

  private:
    // A formula elsewhere that a deletion and an insertion do not leave as it was.
    struct Elsewhere {
        excel::Worksheet sheet;
        std::string address;  // before the deletion
        excel::Range cell;    // moves along
        std::string before;   // with "="
        std::string after;    // once the lines are gone
    };

    DeletedLines(const excel::Application& application, const excel::Range& lines, bool rows, std::size_t most_bytes,
                 const automation::Trace& trace);
    void record_elsewhere(const excel::Workbook& workbook, const std::string& book);

    excel::Application application_;
    excel::Worksheet sheet_;
    bool rows_;
    std::size_t most_bytes_;
    const automation::Trace& trace_;
    std::vector<formula::Area> areas_;  // as they were, ascending
    excel::Range lines_;                // the cells themselves; gone with them
    excel::Range behind_;               // what stood behind each area, moves up with its cells
    std::string behind_after_;          // where that is once the lines are gone
    std::optional<Snapshot> cells_;     // what they hold
    std::optional<Snapshot> lying_;     // of the whole sheet
    std::vector<Elsewhere> elsewhere_;
    std::vector<std::string> irreplaceable_;
};

}  // namespace kestrune::brxllib::undo
