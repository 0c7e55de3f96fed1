#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::smart {

// One-step commands on whole rows and columns of the selection, and on the active sheet's outline. Each does nothing
// where there is none: no workbook is open, or a chart is selected.
enum class RowColumnCommand : std::uint8_t {
    AutoFitRows,
    ResetColumnWidths,
    InsertRows,
    InsertColumns,
    DeleteRows,
    DeleteColumns,
    GroupRows,
    GroupColumns,
    UngroupRows,
    UngroupColumns,
    ExpandAllRowLevels,
    ExpandAllColumnLevels,
    CollapseRowLevels,
    CollapseColumnLevels,
    HideRows,
    HideColumns,
    UnhideRows,
    UnhideColumns,
};

void run_row_column_command(core::SharedState& shared, RowColumnCommand command);

template <RowColumnCommand command>
void row_column_command(core::SharedState& shared, std::int32_t) {
    run_row_column_command(shared, command);
}

}  // namespace kestrune::smart
