#pragma once

#include <string>
#include <string_view>

#include "automation/Value.h"
#include "formula/Reference.h"
#include "host/model/Sheet.h"

namespace kestrune::host {

// What a written value puts into a cell.
struct CellEntry {
    CellContent content;
    std::string formula;      // without "="; empty when the entry is a constant
    std::string_view format;  // the number format that a General cell takes on; empty: none
    bool quoted = false;      // entered with an apostrophe in front

    [[nodiscard]] bool blank() const { return formula.empty() && !quoted && content.kind == CellKind::Blank; }
};

// How the text of a formula is spelt, and which date system the workbook counts in.
struct EntryRules {
    formula::Notation notation = formula::Notation::a1;
    bool date1904 = false;
};

// Reads a value as Excel does when it is put into a cell: texts become numbers, dates, truth values, errors and
// formulas; a Date counts in the workbook's system. A bad formula, and a value that no cell holds, is error 1004.
CellEntry entry_of(std::string_view member, const automation::Value& value, const EntryRules& rules);

// The same for a cell of the format "@", which keeps texts and formulas as they are typed.
CellEntry text_entry_of(std::string_view member, const automation::Value& value, const EntryRules& rules);

// The formula with the names of functions and cells in capitals, as Excel shows what was entered.
std::string capitalized(std::string_view formula, formula::Notation notation);

// Days between the starts of the two date systems.
inline constexpr double days_of_1904 = 1462;

}  // namespace kestrune::host
