#pragma once

#include <string>
#include <string_view>

#include "formula/Lexer.h"

namespace kestrune::formula {

// A formula's tokens, one letter each, in the order of TokenKind: = start, _ white space, n number, s string,
// b boolean, e error, r reference, t structured, N name, f function, ( ) { } , ; themselves, p prefix, B binary,
// P postfix, R range, I intersection, ! invalid.
inline std::string token_letters(std::string_view formula, Notation notation = Notation::a1) {
    constexpr std::string_view letters = "=_nsbertNf(){},;pBPRI!";
    std::string out;
    Lexer lexer(formula, notation);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next())
        out += letters[static_cast<std::size_t>(token.kind)];
    return out;
}

}  // namespace kestrune::formula
