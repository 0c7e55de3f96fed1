#pragma once

#include <string>
#include <utility>
#include <vector>

#include "brxllib/Surroundings.h"
#include "brxllib/undo/Change.h"
#include "excel/Workbook.h"

namespace kestrune::brxllib::undo {

// Custom number formats that a workbook loses while nothing shows them.
class NumberFormatsChange final : public Change {
  public:
    // formats outlives the change.
    NumberFormatsChange(excel::Workbook workbook, CustomFormats& formats);

    bool finish() override;
    // Doing it again must take no format away that is in use by now.
    [[nodiscard]] std::optional<Obstacle> obstacle(Direction direction) const override;
    void undo() override;
    void redo() override;
    void visit_cells(const VisitHeldCells&) const override {}
    [[nodiscard]] std::size_t bytes() const override;

  private:
    excel::Workbook workbook_;
    CustomFormats& formats_;
    std::vector<std::string> codes_;  // all of them; once finished, those that went
};

}  // namespace kestrune::brxllib::undo
