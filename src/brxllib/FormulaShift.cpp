#include "brxllib/FormulaShift.h"

#include "formula/R1C1.h"
#include "formula/Rewrite.h"

namespace kestrune::brxllib {
namespace {

using formula::Coordinate;

// Whether the coordinate is still on the sheet, seen from the line that holds the formula.
bool shift(Coordinate& coordinate, std::int32_t distance, std::int32_t line, std::int32_t limit) {
    if (coordinate.absolute) return true;
    const std::int64_t moved = std::int64_t{coordinate.value} + distance;
    if (moved + line < 1 || moved + line > limit) return false;
    coordinate.value = static_cast<std::int32_t>(moved);
    return true;
}

}  // namespace

std::string shift_for_cell(std::string_view formula, std::int32_t rows, std::int32_t columns,
                           formula::Position target) {
    return formula::rewrite_references(formula, formula::Notation::r1c1, [&](const auto& token, std::string& out) {
        formula::Reference reference = token.reference;
        const bool on_sheet =
            (!reference.has_rows() || (shift(reference.first_row, rows, target.row, formula::max_rows) &&
                                       shift(reference.last_row, rows, target.row, formula::max_rows))) &&
            (!reference.has_columns() || (shift(reference.first_column, columns, target.column, formula::max_columns) &&
                                          shift(reference.last_column, columns, target.column, formula::max_columns)));
        if (!on_sheet)
            out += "#REF!";
        else if (reference == token.reference)
            out.append(formula, token.body(), token.end() - token.body());
        else
            formula::append_r1c1(out, reference);
    });
}

}  // namespace kestrune::brxllib
