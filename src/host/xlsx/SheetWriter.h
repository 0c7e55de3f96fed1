#pragma once

#include <string>

#include "host/model/Sheet.h"
#include "host/xlsx/FileNumbers.h"
#include "host/xlsx/SheetLayout.h"

namespace kestrune::host {

// Notes the cell formats that a sheet shows somewhere.
void use_formats(Sheet& sheet, FileNumbers& formats);

// A worksheet's XML brought in line with the sheet; `text` is what the sheet was read from, and `formats` tells the
// file's numbers of cell formats. Bytes that nothing changed stay as they are.
struct SheetText {
    std::string text;
    bool formulas_changed = false;  // a cell gained, lost or changed a formula
};
[[nodiscard]] SheetText write_sheet(std::string text, Sheet& sheet, const SheetLayout& layout,
                                    const FileNumbers& formats);

}  // namespace kestrune::host
