#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/Workbook.h"

namespace kestrune::host {

// The cells that a name or an address stands for.
struct Cells {
    Sheet* sheet = nullptr;
    std::vector<Area> areas;  // at least one
};

// A defined name as a person writes it: "Rate", "Sheet1!Rate". Names of the sheet `local` come before
// the workbook's; whatever the case. Null when there is none.
DefinedName* find_name(Workbook& workbook, const Sheet* local, std::string_view text);

// The name without the prefix that files give built-in ones: "_xlnm.Print_Area" is "Print_Area".
std::string_view plain_name(std::string_view stored);
// The name as the file has it.
std::string stored_name(std::string_view plain);

// Whether Excel takes the text as a name: letters, digits, "_", "." and "\", not starting with a digit
// or ".", 1 to 255 characters, and no cell reference in either notation.
bool is_valid_name(std::string_view name);

// What an address or a name stands for, seen from the sheet `own`: "B2:C3,E5", "Sheet2!A:A", "Rate".
// Nothing when the text names no cells.
std::optional<Cells> cells_of_text(Workbook& workbook, Sheet& own, std::string_view text);

// The cells of a name; nothing when it stands for something else.
std::optional<Cells> cells_of_name(Workbook& workbook, Sheet* own, const DefinedName& name);

}  // namespace kestrune::host
