#include <array>
#include <functional>
#include <vector>

#include "formula/A1.h"
#include "formula/Convert.h"
#include "formula/Edit.h"
#include "formula/FormulaCheck.h"
#include "formula/Listing.h"
#include "formula/Rewrite.h"
#include "formula/Selection.h"
#include "formula/Shift.h"
#include "fuzz/targets.h"

namespace kestrune::fuzz {
namespace {

using formula::Coordinate;
using formula::Edit;
using formula::Lexer;
using formula::Notation;
using formula::Position;
using formula::Reference;
using formula::Token;
using formula::TokenKind;

// The tokens follow each other from the first byte to the last one.
std::vector<Token> tiles(std::string_view text, Notation notation) {
    std::vector<Token> tokens;
    std::size_t at = 0;
    Lexer lexer(text, notation);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        expect(token.offset == at && token.length > 0 && token.prefix <= token.length, "tokens tile the text", text);
        at = token.end();
        tokens.push_back(token);
    }
    expect(at == text.size(), "tokens reach the end of the text", text);
    expect(lexer.next().kind == TokenKind::end, "the end stays the end", text);
    return tokens;
}

void order(Coordinate& first, Coordinate& last) {
    const bool passed = first.value > last.value || (first.value == last.value && last.absolute && !first.absolute);
    if (passed) std::swap(first, last);
}

// The formula with every reference in the one spelling that all others of it have in common: capital letters, no
// leading zeros, corners in order and of two equal ones the absolute one first.
std::string plain(std::string_view text) {
    return formula::rewrite_references(text, Notation::a1, [](const Token& token, std::string& out) {
        Reference reference = token.reference;
        order(reference.first_row, reference.last_row);
        order(reference.first_column, reference.last_column);
        formula::append_a1(out, reference);
    });
}

std::size_t lost(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = text.find("#REF!"); at != std::string_view::npos; at = text.find("#REF!", at + 1)) ++count;
    return count;
}

// Whether the other notation reads a reference out of what is none here: a name RC, an undefined word R2C2.
bool reads_otherwise(std::string_view text, const std::vector<Token>& tokens) {
    for (const Token& token : tokens) {
        if (token.kind == TokenKind::reference) continue;
        const std::string_view piece = token.text(text);
        // Whatever follows a word may decide how it is read, so it stays where it is.
        for (const Token& other : tiles(text.substr(token.offset), Notation::r1c1)) {
            if (other.offset >= piece.size()) break;
            if (other.kind == TokenKind::reference || other.kind != token.kind || other.length != token.length) {
                return true;
            }
            break;
        }
    }
    return false;
}

void goes_there_and_back(std::string_view text) {
    const std::string here = plain(text);
    expect(plain(here) == here, "the plain spelling is read as written", text, here);

    const auto seed = static_cast<std::uint32_t>(std::hash<std::string_view>{}(text));
    const auto rows = static_cast<std::int32_t>(seed % 7) - 3;
    const auto columns = static_cast<std::int32_t>(seed / 7 % 7) - 3;
    const std::string round = formula::shift_formula(here, rows, columns, formula::OffSheet::wrap);
    expect(plain(formula::shift_formula(round, -rows, -columns, formula::OffSheet::wrap)) == here,
           "shifting round the sheet and back changes nothing", here, round);
    const std::string away = formula::shift_formula(here, rows, columns);
    if (lost(away) == lost(here)) {
        expect(plain(formula::shift_formula(away, -rows, -columns)) == here, "shifting and back changes nothing", here,
               away);
    }

    const Position base{static_cast<std::int32_t>(seed % 100) + 1, static_cast<std::int32_t>(seed / 100 % 50) + 1};
    if (!reads_otherwise(here, tiles(here, Notation::a1))) {
        const std::string distances = formula::to_r1c1(here, base);
        expect(plain(formula::to_a1(distances, base)) == here, "to R1C1 and back changes nothing", here, distances);
    }
}

void edits_and_back(std::string_view text) {
    const std::string here = plain(text);
    bool at_the_end = false;
    for (const Token& token : tiles(here, Notation::a1)) {
        constexpr std::int32_t margin = 10;
        at_the_end = at_the_end || (token.kind == TokenKind::reference &&
                                    (token.reference.last_row.value > formula::max_rows - margin ||
                                     token.reference.last_column.value > formula::max_columns - margin));
    }
    if (at_the_end) return;
    for (const auto& [insert, erase] : {std::pair{Edit::Kind::insert_rows, Edit::Kind::delete_rows},
                                        std::pair{Edit::Kind::insert_columns, Edit::Kind::delete_columns}}) {
        const std::string away = formula::adjust_for_edit(here, "Tab", {insert, "Tab", 3, 2});
        expect(plain(formula::adjust_for_edit(away, "Tab", {erase, "Tab", 3, 2})) == here,
               "inserting and deleting the same lines changes nothing", here, away);
    }
}

}  // namespace

void formula(std::string_view text) {
    for (const Notation notation : {Notation::a1, Notation::r1c1}) {
        std::size_t references = 0;
        for (const Token& token : tiles(text, notation)) references += token.kind == TokenKind::reference ? 1U : 0U;
        expect(formula::references(text, notation).size() == references, "every reference is listed", text);
        const auto error = formula::check_formula(text, notation);
        expect(!error || error->offset <= text.size(), "an error is inside the text", text);
        // In what is no formula, a moved reference may run together with its neighbours: 5C7 becomes the number 5E7.
        if (error || notation == Notation::r1c1) continue;
        goes_there_and_back(text);
        edits_and_back(text);
        // What can be entered can still be entered when it has been filled elsewhere.
        for (const std::string& other :
             {formula::shift_formula(text, 3, -1),
              formula::adjust_for_edit(text, "Tab", {Edit::Kind::delete_rows, "Tab", 2, 1})}) {
            expect(!formula::check_formula(other), "a moved formula stays one", text, other);
        }
    }
    (void)formula::parse_selection(text);
    (void)formula::ingredients(text, "Tab");
}

}  // namespace kestrune::fuzz
