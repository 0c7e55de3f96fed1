#include "formula/Shift.h"

#include "formula/A1.h"
#include "formula/R1C1.h"
#include "formula/Rewrite.h"

namespace kestrune::formula {
namespace {

void shift(Coordinate& coordinate, std::int64_t distance, std::int64_t limit) {
    if (!coordinate.absolute) coordinate.value = static_cast<std::int32_t>((coordinate.value + distance) % limit);
}

}  // namespace

std::string shift_formula(std::string_view formula, std::int32_t rows, std::int32_t columns, OffSheet off_sheet) {
    return rewrite_references(formula, Notation::a1, [&](const Token& token, std::string& out) {
        const auto target = moved(token.reference, rows, columns, off_sheet);
        if (!target)
            out += "#REF!";
        else if (*target == token.reference)
            out.append(formula, token.body(), token.end() - token.body());
        else
            append_a1(out, *target);
    });
}

std::string shift_r1c1_formula(std::string_view formula, std::int32_t rows, std::int32_t columns) {
    return rewrite_references(formula, Notation::r1c1, [&](const Token& token, std::string& out) {
        Reference reference = token.reference;
        if (reference.has_rows()) {
            shift(reference.first_row, rows, max_rows);
            shift(reference.last_row, rows, max_rows);
        }
        if (reference.has_columns()) {
            shift(reference.first_column, columns, max_columns);
            shift(reference.last_column, columns, max_columns);
        }
        if (reference == token.reference)
            out.append(formula, token.body(), token.end() - token.body());
        else
            append_r1c1(out, reference);
    });
}

}  // namespace kestrune::formula
