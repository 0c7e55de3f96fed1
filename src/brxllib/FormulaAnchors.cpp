#include "brxllib/FormulaAnchors.h"

#include "formula/A1.h"
#include "formula/Rewrite.h"

namespace kestrune::brxllib {

std::optional<Anchor> anchor_of(std::string_view formula) {
    formula::Lexer lexer(formula);
    for (auto token = lexer.next(); token.kind != formula::TokenKind::end; token = lexer.next()) {
        if (token.kind != formula::TokenKind::reference) continue;
        const formula::Reference& first = token.reference;
        const bool row = first.has_rows() && first.first_row.absolute;
        const bool column = first.has_columns() && first.first_column.absolute;
        if (!first.has_rows() || !first.has_columns()) return row || column ? Anchor::Absolute : Anchor::Relative;
        if (row && column) return Anchor::Absolute;
        if (row) return Anchor::Row;
        return column ? Anchor::Column : Anchor::Relative;
    }
    return std::nullopt;
}

std::string anchored(std::string_view formula, Anchor anchor) {
    const bool rows = anchor == Anchor::Absolute || anchor == Anchor::Row;
    const bool columns = anchor == Anchor::Absolute || anchor == Anchor::Column;
    return formula::rewrite_references(formula, formula::Notation::a1,
                                       [&](const formula::Token& token, std::string& out) {
                                           formula::Reference reference = token.reference;
                                           reference.first_row.absolute = reference.last_row.absolute = rows;
                                           reference.first_column.absolute = reference.last_column.absolute = columns;
                                           formula::append_a1(out, reference);
                                       });
}

}  // namespace kestrune::brxllib
