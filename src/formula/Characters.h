#pragma once

#include <cstddef>
#include <string_view>

namespace kestrune::formula {

// Letters, digits and the signs that names, functions and unquoted sheet names are made of. Every byte of a character
// beyond ASCII counts as a letter.
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }
constexpr bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
constexpr bool is_beyond_ascii(char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; }
constexpr bool is_word_start(char c) { return is_letter(c) || c == '_' || c == '\\' || is_beyond_ascii(c); }
constexpr bool is_word_part(char c) { return is_word_start(c) || is_digit(c) || c == '.' || c == '?'; }
constexpr bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// Whether a reference may end at `at`: what follows does not make it part of a longer word, a function, a sheet or a
// table.
constexpr bool ends_reference(std::string_view text, std::size_t at) {
    if (at >= text.size()) return true;
    const char c = text[at];
    return !is_word_part(c) && c != '$' && c != '(' && c != '[' && c != '!';
}

constexpr char to_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// Compares without regard to the case of ASCII letters.
constexpr bool equal_ignoring_case(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (to_upper(a[i]) != to_upper(b[i])) return false;
    return true;
}

constexpr bool starts_with_ignoring_case(std::string_view text, std::string_view start) {
    return text.size() >= start.size() && equal_ignoring_case(text.substr(0, start.size()), start);
}

}  // namespace kestrune::formula
