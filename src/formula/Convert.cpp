#include "formula/Convert.h"

#include "formula/A1.h"
#include "formula/R1C1.h"
#include "formula/Rewrite.h"

namespace kestrune::formula {

std::string to_r1c1(std::string_view a1_formula, Position base) {
    return rewrite_references(a1_formula, Notation::a1, [&](const Token& token, std::string& out) {
        // In A:A:C:D the first pair must stay one: C1:C3:C4 would read as C1:C3 and C4.
        const bool before_range = token.end() < a1_formula.size() && a1_formula[token.end()] == ':';
        append_r1c1(out, to_distances(token.reference, base), before_range);
    });
}

std::string to_a1(std::string_view r1c1_formula, Position base) {
    return rewrite_references(r1c1_formula, Notation::r1c1, [&](const Token& token, std::string& out) {
        append_a1(out, to_positions(token.reference, base));
    });
}

}  // namespace kestrune::formula
