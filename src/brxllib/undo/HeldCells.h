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

// Held cells as they are before rows or columns come or go: what goes takes some along, and what comes in pushes some
// off the sheet.
class DisplacedCells {
  public:
    // Looks at cells before it happens.
    void look(const HeldCellsRef& cells);
    // It has happened.
    void settle();
    // It is about to be taken back: lets go of cells that something else has happened to since.
    void keep_untouched();
    // It was taken back: holds the cells where they were. Fails with AutomationError.
    void hold_again();

  private:
    struct Place {
        std::weak_ptr<HeldCells> cells;
        std::vector<formula::Area> before;
        std::optional<std::vector<formula::Area>> after{};
    };
    std::vector<Place> displaced_;
};

}  // namespace kestrune::brxllib::undo
