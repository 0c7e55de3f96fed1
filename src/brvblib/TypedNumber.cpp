#include "brvblib/TypedNumber.h"

#include <charconv>
#include <cmath>
#include <string>

#include "automation/Text.h"

namespace kestrune::brvblib {
namespace {

using automation::trimmed;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool take(std::string_view& text, char first) {
    if (text.empty() || text.front() != first) return false;
    text = trimmed(text.substr(1));
    return true;
}

bool take_last(std::string_view& text, char last) {
    if (text.empty() || text.back() != last) return false;
    text = trimmed(text.substr(0, text.size() - 1));
    return true;
}

// Digits, commas between digits of the whole part, one point, an exponent.
std::optional<double> plain_number(std::string_view text) {
    std::string digits;
    bool whole_part = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == ',') {
            const bool between = i > 0 && is_digit(text[i - 1]) && i + 1 < text.size() && is_digit(text[i + 1]);
            if (!whole_part || !between) return std::nullopt;
            continue;
        }
        if (!is_digit(c)) whole_part = false;
        digits += c;
    }
    // from_chars reads "inf" and "nan" too.
    if (digits.empty() || (!is_digit(digits.front()) && digits.front() != '.')) return std::nullopt;
    double number = 0;
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (failure != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(number)) return std::nullopt;
    return number;
}

}  // namespace

std::optional<double> typed_number(std::string_view text) {
    text = trimmed(text);
    bool negative = false;
    if (text.size() > 2 && text.front() == '(' && text.back() == ')') {
        negative = true;
        text = trimmed(text.substr(1, text.size() - 2));
    } else if (take(text, '-')) {
        negative = true;
    } else {
        take(text, '+');
    }
    const bool currency = take(text, '$');
    // "$-5" is typed as often as "-$5".
    if (currency && !negative) negative = take(text, '-');
    const bool per_cent = take_last(text, '%');
    const auto number = plain_number(text);
    if (!number) return std::nullopt;
    const double value = per_cent ? *number / 100 : *number;
    return negative ? -value : value;
}

}  // namespace kestrune::brvblib
