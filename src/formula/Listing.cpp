#include "formula/Listing.h"

#include "formula/Characters.h"
#include "formula/Lexer.h"

namespace kestrune::formula {

std::vector<ReferenceUse> references(std::string_view formula, Notation notation) {
    std::vector<ReferenceUse> uses;
    Lexer lexer(formula, notation);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        if (token.kind != TokenKind::reference) continue;
        ReferenceUse use{token.offset, token.length, {}, token.reference};
        if (token.prefix > 0) use.sheet = parse_sheet_prefix(token.sheet(formula));
        uses.push_back(std::move(use));
    }
    return uses;
}

Ingredients ingredients(std::string_view formula, std::string_view own_sheet) {
    Ingredients found;
    Lexer lexer(formula);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        switch (token.kind) {
            case TokenKind::reference:
                found.cells = true;
                break;
            case TokenKind::name:
            case TokenKind::structured:
                found.names = true;
                break;
            case TokenKind::function:
                found.functions = true;
                break;
            case TokenKind::number:
                found.numbers = true;
                break;
            case TokenKind::string:
                found.texts = true;
                break;
            case TokenKind::error:
                found.lost_references |= starts_with_ignoring_case(formula.substr(token.body()), "#REF!");
                break;
            default:
                break;
        }
        if (token.prefix == 0 || names_sheet(token.sheet(formula), own_sheet)) continue;
        const SheetPrefix sheet = parse_sheet_prefix(token.sheet(formula));
        const bool other_program = sheet.first_sheet.find('|') != std::string::npos;
        if (other_program || (!sheet.book.empty() && sheet.book != "0"))
            found.other_workbooks = true;
        else if (!sheet.first_sheet.empty())
            found.other_sheets = true;
    }
    return found;
}

}  // namespace kestrune::formula
