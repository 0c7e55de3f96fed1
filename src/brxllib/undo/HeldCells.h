#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "excel/Application.h"
#include "excel/Worksheet.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// Cells that a step speaks of. They move along as rows and columns come and go; those that go with them are lost, until
// undo or redo brings the rows and columns back and holds the cells again.
class HeldCells {
  public:
    HeldCells(excel::Application application, excel::Range cells);

    [[nodiscard]] const excel::Range& range() const { return range_; }
    // On which they lie, or lay.
    [[nodiscard]] const excel::Worksheet& sheet() const { return sheet_; }
    // Where they are; nothing when they, or their sheet, are no more.
    [[nodiscard]] std::optional<std::vector<formula::Area>> areas() const;
    // The cells that lie here now, in place of those so far.
    void hold(const std::vector<formula::Area>& areas);

  private:
    excel::Application application_;
    excel::Worksheet sheet_;
    excel::Range range_;
};
using HeldCellsRef = std::shared_ptr<HeldCells>;
using VisitHeldCells = std::function<void(const HeldCellsRef& cells)>;

// Held cells that rows or columns take with them as they go.
class LostCells {
  public:
    // Looks at cells before the rows or columns go.
    void look(const HeldCellsRef& cells);
    // They have gone: keeps those cells that are no longer what they were, or will not be once others come back.
    void settle();
    // They are about to come back: lets go of cells that something else has happened to since.
    void keep_untouched();
    // They are back: holds the cells where they were. Fails with AutomationError.
    void hold_again();

  private:
    struct Lost {
        std::weak_ptr<HeldCells> cells;
        std::vector<formula::Area> before;
        std::optional<std::vector<formula::Area>> after{};
    };
    std::vector<Lost> lost_;
};

}  // namespace kestrune::brxllib::undo
