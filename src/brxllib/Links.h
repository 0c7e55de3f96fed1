#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "automation/Value.h"
#include "excel/Application.h"

namespace kestrune::brxllib {

// One reference between two cells, seen from one of them: where the other end is, and the words of the formula that
// makes it.
struct Link {
    std::string text;      // the reference as the formula writes it
    std::string workbook;  // the other end's workbook, its file name
    std::string folder;    // of that workbook; empty when it was never saved, or the formula does not tell
    std::string sheet;
    std::string address;        // "$A$1:$B$2"
    std::string through;        // the defined name or table that the reference goes through; else empty
    std::int32_t position = 1;  // of the text in the formula, and its length, in characters as Visual Basic counts
    std::int32_t length = 0;
    std::string formula;
};

// As an array of one row a link and the members of Link as columns, both from 1. Without links it has no rows.
[[nodiscard]] automation::Value array_of(const std::vector<Link>& links);

// The cells that a cell's formula refers to, in the order of its text; none for a cell without a formula.
[[nodiscard]] std::vector<Link> precedents(const excel::Application& application, const excel::Range& cell);

// The cells, of all open workbooks, whose formulas refer to a cell (or to one of several), directly or through names
// and tables, each once: the cell's own workbook and sheet first, then the others in their order, row by row. Formulas
// that work out at run time what they refer to (INDIRECT, OFFSET) count with what their text names.
[[nodiscard]] std::vector<Link> dependents(const excel::Application& application, const excel::Range& cell);

}  // namespace kestrune::brxllib
