#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "automation/ResumeNext.h"
#include "core/bridges/SharedState.h"
#include "excel/Application.h"
#include "excel/Worksheet.h"

namespace kestrune::smart {

// Where a person was before they were shown other cells: every sheet on the way with its selection and what was seen of
// it, every workbook with its active sheet.
class Trail {
  public:
    // From the active sheet on; a worksheet is active. The state outlives it.
    explicit Trail(const core::SharedState& shared);

    // Shows cells: their workbook and sheet become active, and they are selected. False where that cannot be: the
    // workbook is not open, there is no such sheet or address, the sheet is hidden.
    bool show(const core::CellLink& link);
    // Something else than show() went elsewhere.
    void left() { left_ = true; }
    // Everything is as it was when the trail began.
    void back();

  private:
    struct SheetPlace {
        excel::Workbook workbook;
        excel::Worksheet sheet;
        std::string key;
        excel::Range selection;
        excel::Range active_cell;
        std::int32_t scroll_row = 1;
        std::int32_t scroll_column = 1;
    };
    struct BookPlace {
        excel::Workbook workbook;
        std::string name;
        automation::ObjectRef active_sheet;
    };

    void note_book(const excel::Workbook& workbook);
    void note_sheet(const excel::Workbook& workbook, const excel::Worksheet& sheet);

    excel::Application application_;
    automation::ResumeNext attempt_;
    std::vector<SheetPlace> sheets_;  // in the order of the first visit, as the next
    std::vector<BookPlace> books_;
    bool left_ = false;  // the place where the trail began
};

}  // namespace kestrune::smart
