#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "formula/Reference.h"

namespace kestrune::formula {

enum class TokenKind : std::uint8_t {
    start,         // the "=" in front of a formula, where there is one
    whitespace,    // spaces and line ends without a meaning
    number,        // 1, .5, 1.5E+10
    string,        // "a ""quoted"" text"
    boolean,       // TRUE, FALSE
    error,         // #REF!, #N/A
    reference,     // A1, $B$2:C5, A:C, 3:7, R[-1]C, perhaps behind a sheet
    structured,    // Table1[[#This Row],[Col]], [@Col]
    name,          // Rate, [1]!Rate, Sheet1!Rate
    function,      // the word before "("
    open,          // (
    close,         // )
    open_brace,    // {
    close_brace,   // }
    comma,         // between arguments, areas, columns of an array
    semicolon,     // between rows of an array
    prefix,        // + - @ in front of an operand
    binary,        // + - * / ^ & = <> < > <= >=
    postfix,       // % and the # of a spilled range
    range,         // :
    intersection,  // the space between two references
    invalid,       // bytes that no formula has; an unclosed text, apostrophe or bracket takes the rest
    end,
};

// A piece of the formula. Offsets count bytes of the formula's text; tokens follow each other without gaps.
struct Token {
    TokenKind kind = TokenKind::end;
    std::size_t offset = 0;
    std::size_t length = 0;
    std::size_t prefix = 0;  // how many of the first bytes are the sheet: 7 in Sheet1!A1
    Reference reference;     // when the kind is reference

    [[nodiscard]] std::size_t body() const { return offset + prefix; }
    [[nodiscard]] std::size_t end() const { return offset + length; }
    [[nodiscard]] std::string_view text(std::string_view formula) const { return formula.substr(offset, length); }
    [[nodiscard]] std::string_view sheet(std::string_view formula) const { return formula.substr(offset, prefix); }
};

// Cuts a formula, with or without its leading "=", as files and the object model's English spelling have it
// (ECMA-376, 18.17.2), plus what Excel added since: @, # and the newer errors. Any bytes can be cut; what cannot
// be part of a formula comes out as invalid tokens. Takes time in proportion to the text and allocates nothing. The
// text must outlive the lexer.
class Lexer {
  public:
    explicit Lexer(std::string_view formula, Notation notation = Notation::a1) : text_(formula), notation_(notation) {}

    // The next token; of kind end, and empty, from the end of the text on.
    Token next();

  private:
    [[nodiscard]] char peek(std::size_t at) const { return at < text_.size() ? text_[at] : '\0'; }
    [[nodiscard]] std::size_t word_end(std::size_t at, std::size_t limit = std::string_view::npos) const;
    [[nodiscard]] std::size_t quoted_end(std::size_t at, char quote) const;
    [[nodiscard]] std::size_t bracket_end(std::size_t at) const;
    [[nodiscard]] std::size_t prefix_end(std::size_t at) const;
    [[nodiscard]] std::size_t number_end(std::size_t at) const;
    [[nodiscard]] std::size_t match_reference(std::size_t at, Reference& reference) const;
    [[nodiscard]] std::size_t lost_end(std::size_t at, std::size_t end) const;
    [[nodiscard]] bool starts_operand(std::size_t at) const;

    Token token(TokenKind kind, std::size_t end, bool is_operand);
    Token operand();
    Token word(std::size_t body);
    Token sign();

    std::string_view text_;
    std::size_t at_ = 0;
    Notation notation_;
    bool after_operand_ = false;
};

}  // namespace kestrune::formula
