#pragma once

#include <string>
#include <string_view>

#include "formula/Lexer.h"

namespace kestrune::formula {

// Copies a formula and lets `replace(token, out)` write each reference anew, behind its sheet, which is kept like every
// other byte of the text.
template <class Replace>
std::string rewrite_references(std::string_view formula, Notation notation, Replace&& replace) {
    std::string out;
    out.reserve(formula.size() + 16);
    std::size_t copied = 0;
    Lexer lexer(formula, notation);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        if (token.kind != TokenKind::reference) continue;
        out.append(formula, copied, token.body() - copied);
        replace(token, out);
        copied = token.end();
    }
    out.append(formula, copied);
    return out;
}

}  // namespace kestrune::formula
