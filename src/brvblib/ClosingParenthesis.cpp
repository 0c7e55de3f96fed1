#include "brvblib/ClosingParenthesis.h"

namespace kestrune::brvblib {
namespace {

// UTF-16 units that a byte of UTF-8 begins: none where it continues a character, two beyond the first plane.
std::int32_t units(char byte) {
    const auto bits = static_cast<unsigned char>(byte);
    if ((bits & 0xC0U) == 0x80U) return 0;
    return bits >= 0xF0U ? 2 : 1;
}

}  // namespace

std::int32_t closing_parenthesis(std::string_view expression) {
    std::int32_t position = 0;
    int parentheses = 0;
    int brackets = 0;
    char quote = '\0';  // a doubled quote closes and opens again, which comes to the same
    bool taken = false;
    for (const char c : expression) {
        position += units(c);
        if (taken) {
            taken = false;
        } else if (quote) {
            if (c == quote) quote = '\0';
        } else if (brackets > 0) {
            if (c == '\'') taken = true;
            if (c == '[') ++brackets;
            if (c == ']') --brackets;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '[') {
            ++brackets;
        } else if (c == '(') {
            ++parentheses;
        } else if (c == ')' && parentheses-- == 0) {
            return position;
        }
    }
    return 0;
}

}  // namespace kestrune::brvblib
