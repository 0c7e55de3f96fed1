#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Trace.h"
#include "excel/Workbook.h"

namespace kestrune::brxllib {

// Whether somebody other than a modeller owns a name, so that it stays whatever it refers to: Excel for print settings,
// filters, queries and its dialogs, LET and LAMBDA for their parameters, Solver and reports, and our own bookmarks.
// Without the sheet in front.
[[nodiscard]] bool is_system_name(std::string_view name);

// Whether what a name refers to can no longer be resolved: nothing at all, a lost reference (#REF!), or a sheet that
// the workbook has not. Links to other workbooks are valid, open or not. sheets: the workbook's.
[[nodiscard]] bool is_invalid_reference(std::string_view refers_to, std::span<const std::string> sheets);

// The names of a workbook that is_system_name leaves and whose reference is invalid, hidden ones among them, as Excel
// spells them ("Sheet1!Rate").
[[nodiscard]] std::vector<std::string> invalid_names(const excel::Workbook& workbook);

// Deletes them; how many went. One that Excel refuses to delete stays.
std::int32_t remove_invalid_names(const excel::Workbook& workbook, const automation::Trace& trace);

}  // namespace kestrune::brxllib
