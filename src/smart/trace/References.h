#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bridges/diBRXLLib.h"
#include "excel/Application.h"

namespace kestrune::smart {

// The cell whose references are listed.
struct TracedCell {
    std::string workbook;
    std::string sheet;
    std::string address;  // "C5"
};

// References in the order in which they are listed: the cell's own sheet, the other sheets of its workbook, the other
// workbooks, each together where the first of them stood. Cells that are named more than once are listed once.
[[nodiscard]] std::vector<core::CellLink> grouped(std::vector<core::CellLink> links, const TracedCell& cell);

// The sheet of a reference as it is listed: "Rates", "[Budget.xlsx]Rates" for another workbook's.
[[nodiscard]] std::string sheet_text(const core::CellLink& link, const TracedCell& cell);
// Its cells: "B4:B9" on the cell's own sheet, "Rates!C4", "[Budget.xlsx]Rates!C4", "[Budget.xlsx]Euro" for a name.
[[nodiscard]] std::string cells_text(const core::CellLink& link, const TracedCell& cell);

// Where the file of a reference's workbook lies, as far as the formula tells.
[[nodiscard]] std::string path_of(const core::CellLink& link);

[[nodiscard]] bool is_open(const excel::Application& application, std::string_view workbook);
// One reference for each workbook that is not open.
[[nodiscard]] std::vector<core::CellLink> of_closed_workbooks(const excel::Application& application,
                                                              const std::vector<core::CellLink>& links);

}  // namespace kestrune::smart
