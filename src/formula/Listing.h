#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "formula/Reference.h"
#include "formula/SheetName.h"

namespace kestrune::formula {

// A reference in a formula, and the bytes of the text that spell it.
struct ReferenceUse {
    std::size_t offset = 0;
    std::size_t length = 0;
    SheetPrefix sheet;  // empty for the formula's own sheet
    Reference reference;
};

// The cells a formula refers to by address, in the order of its text. Names, tables and lost references are not listed.
[[nodiscard]] std::vector<ReferenceUse> references(std::string_view formula, Notation notation = Notation::a1);

// What a formula is made of, for colouring cells by what they hold.
struct Ingredients {
    bool cells = false;            // refers to cells by address, on any sheet
    bool names = false;            // defined names or tables
    bool functions = false;        // calls a function
    bool numbers = false;          // hard-coded numbers, in arrays too
    bool texts = false;            // hard-coded texts
    bool other_sheets = false;     // cells or names of another sheet of the workbook
    bool other_workbooks = false;  // or of another workbook or program
    bool lost_references = false;  // holds #REF!
};

[[nodiscard]] Ingredients ingredients(std::string_view formula, std::string_view own_sheet);

}  // namespace kestrune::formula
