#pragma once

#include <string>
#include <string_view>

namespace kestrune::formula {

// Whether a formula has to write the sheet's name in apostrophes: it holds a character other than letters, digits, "_"
// and ".", starts with a digit or ".", or reads as a reference (A1, RC) or a truth value. UTF-8.
[[nodiscard]] bool needs_quotes(std::string_view sheet);

// The name as a formula writes it, with apostrophes doubled inside apostrophes where they are needed: It's -> 'It''s'.
[[nodiscard]] std::string quoted_sheet(std::string_view sheet);

// What stands before a reference's "!": Sheet1!, 'It''s'!, Sheet1:Sheet3!, [1]Sheet1!, 'C:\models\[a.xlsx]Sheet1'!,
// [1]!.
struct SheetPrefix {
    std::string book;         // "1", "a.xlsx" or "C:\models\a.xlsx"; empty for the formula's own workbook
    std::string first_sheet;  // empty for a name of a workbook
    std::string last_sheet;   // same as the first, except in Sheet1:Sheet3!

    bool operator==(const SheetPrefix&) const = default;
};

// Takes a prefix apart; `prefix` ends with its "!". Text that is none gives the whole text as the first sheet.
[[nodiscard]] SheetPrefix parse_sheet_prefix(std::string_view prefix);

// Whether the prefix names exactly this sheet of the formula's own workbook. Allocates nothing for plain prefixes.
[[nodiscard]] bool names_sheet(std::string_view prefix, std::string_view sheet);

}  // namespace kestrune::formula
