#pragma once

#include <cstdint>

#include "host/objects/HostSession.h"

namespace kestrune::host {

// The active cell and the selection of the active worksheet, moved as keys move them. Error 1004 where no worksheet is
// active. Extending keeps the active cell and moves the opposite corner of its area.
class Pointer {
  public:
    explicit Pointer(HostSession& session);

    // One cell, past hidden rows and columns and the rest of a merged cell; at the sheet's edge nothing moves.
    void step(std::int32_t rows, std::int32_t columns, bool extend);
    // To the edge of the data (XlDirection).
    void run(std::int32_t direction, bool extend);
    void go(Position to, bool extend);
    // To the next cell of a larger selection, around its end; else one cell on.
    void next(bool by_rows, bool backwards);

    void select_rows();     // of the selection
    void select_columns();  // of the selection
    void select_cell();     // the active cell alone
    void select_region();   // the data around the active cell
    void select_region_or_sheet();

    // Where the row and the sheet begin: right of and below frozen panes.
    [[nodiscard]] Position row_start() const;
    [[nodiscard]] Position sheet_start() const;
    [[nodiscard]] Position sheet_end() const;  // the last cell in use

    [[nodiscard]] Sheet& sheet() const { return sheet_; }

  private:
    [[nodiscard]] SheetView& view() const { return sheet_.view(); }
    [[nodiscard]] Area& active_area() const;
    [[nodiscard]] Area active_cell() const;  // with the rest of a merged one
    [[nodiscard]] Position far_corner() const;
    void select(std::vector<Area> areas, Position active) const;
    void extend_to(Position corner) const;

    HostSession& session_;
    Sheet& sheet_;
};

}  // namespace kestrune::host
