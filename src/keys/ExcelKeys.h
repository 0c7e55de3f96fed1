#pragma once

#include <span>
#include <string_view>

#include "keys/Key.h"

namespace kestrune::keys {

// What a key does in Excel for Windows when nothing is bound to it.
struct ExcelKey {
    Key key;
    std::string_view meaning;  // "shows the Format Cells dialog"
};

// The keys that Excel documents, by what they do to a workbook that is not being edited.
// https://support.microsoft.com/office/keyboard-shortcuts-in-excel-1798d9d5-842a-42b8-9c99-9b7213f0040f
std::span<const ExcelKey> excel_keys();

// Empty when Excel has nothing for the key.
std::string_view excel_meaning(const Key& key);

}  // namespace kestrune::keys
