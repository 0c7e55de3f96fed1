#pragma once

#include <cstdint>
#include <string>

#include "host/model/Sheet.h"
#include "host/xlsx/SheetLayout.h"

namespace kestrune::host {

// A worksheet's XML brought in line with the sheet; `text` is what the sheet was read from, and `formats` the number
// of cell formats of that file. Bytes that nothing changed stay as they are.
struct SheetText {
    std::string text;
    bool formulas_changed = false;  // a cell gained, lost or changed a formula
};
[[nodiscard]] SheetText write_sheet(std::string text, Sheet& sheet, const SheetLayout& layout, std::uint32_t formats);

}  // namespace kestrune::host
