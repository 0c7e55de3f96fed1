#include "host/objects/EnteredNumber.h"

#include <charconv>
#include <string>

#include "automation/Text.h"

namespace kestrune::host {
namespace {

constexpr int significant_digits = 15;

bool digit(char c) { return c >= '0' && c <= '9'; }

// Digits with an optional fraction and exponent, thousands parted by commas.
struct Unsigned {
    double value = 0;
    bool grouped = false;
    bool decimals = false;
    bool exponent = false;
};

std::optional<Unsigned> unsigned_number(std::string_view text) {
    Unsigned number;
    std::string plain;
    std::size_t at = 0;
    std::size_t group = 0;  // digits since the last comma
    int seen = 0;           // significant digits so far; the rest become zeros
    const auto take = [&](char c) {
        if (seen > 0 || c != '0') ++seen;
        plain += seen > significant_digits ? '0' : c;
    };
    for (; at < text.size() && (digit(text[at]) || text[at] == ','); ++at) {
        if (text[at] == ',') {
            if (group == 0 || group > 3 || (number.grouped && group != 3)) return std::nullopt;
            number.grouped = true;
            group = 0;
        } else {
            take(text[at]);
            ++group;
        }
    }
    if (number.grouped && group != 3) return std::nullopt;
    const bool whole = !plain.empty();
    bool fraction = false;
    if (at < text.size() && text[at] == '.') {
        number.decimals = true;
        plain += plain.empty() ? "0." : ".";
        for (++at; at < text.size() && digit(text[at]); ++at) {
            take(text[at]);
            fraction = true;
        }
    }
    if (!whole && !fraction) return std::nullopt;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        number.exponent = true;
        plain += 'e';
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
            if (text[at] == '-') plain += '-';
            ++at;
        }
        if (at == text.size()) return std::nullopt;
        for (; at < text.size() && digit(text[at]); ++at) plain += text[at];
    }
    if (at != text.size()) return std::nullopt;
    const auto [end, failure] = std::from_chars(plain.data(), plain.data() + plain.size(), number.value);
    if (failure != std::errc{} || end != plain.data() + plain.size()) return std::nullopt;
    return number;
}

// "1 1/2": a whole number, a space and a fraction.
std::optional<EnteredNumber> mixed_fraction(std::string_view text) {
    const std::size_t space = text.find(' ');
    const std::size_t slash = text.find('/');
    if (space == std::string_view::npos || slash == std::string_view::npos || slash < space) return std::nullopt;
    const auto whole = unsigned_number(text.substr(0, space));
    const auto above = unsigned_number(automation::trimmed(text.substr(space, slash - space)));
    const auto below_text = automation::trimmed(text.substr(slash + 1));
    const auto below = unsigned_number(below_text);
    const auto is_whole = [](const auto& number) { return number && !number->decimals && !number->exponent; };
    if (!is_whole(whole) || !is_whole(above) || !is_whole(below) || below->value == 0) return std::nullopt;
    return EnteredNumber{whole->value + above->value / below->value, below_text.size() > 1 ? "# ?\?/?\?" : "# ?/?"};
}

}  // namespace

std::optional<EnteredNumber> entered_number(std::string_view text) {
    text = automation::trimmed(text);
    bool negative = false;
    bool signed_already = false;
    bool currency = false;
    bool percent = false;
    const auto take = [&](char c) {
        if (!text.starts_with(c)) return false;
        text = automation::trimmed(text.substr(1));
        return true;
    };
    if (text.size() > 2 && text.front() == '(' && text.back() == ')') {
        negative = signed_already = true;
        text = automation::trimmed(text.substr(1, text.size() - 2));
    }
    for (int part = 0; part < 2; ++part) {
        if (!signed_already && !text.empty() && (text.front() == '-' || text.front() == '+')) {
            negative = text.front() == '-';
            signed_already = true;
            text = automation::trimmed(text.substr(1));
        }
        if (!currency) currency = take('$');
    }
    if (!currency && text.ends_with('%')) {
        percent = true;
        text = automation::trimmed(text.substr(0, text.size() - 1));
    }
    if (!currency && !percent) {
        if (auto fraction = mixed_fraction(text)) {
            if (negative) fraction->value = -fraction->value;
            return fraction;
        }
    }
    const auto number = unsigned_number(text);
    if (!number) return std::nullopt;
    EnteredNumber entered;
    entered.value = negative ? -number->value : number->value;
    if (percent) {
        entered.value /= 100;
        entered.format = number->decimals ? "0.00%" : "0%";
    } else if (currency) {
        entered.format = number->decimals ? "$#,##0.00_);[Red]($#,##0.00)" : "$#,##0_);[Red]($#,##0)";
    } else if (number->exponent) {
        entered.format = "0.00E+00";
    } else if (number->grouped) {
        entered.format = number->decimals ? "#,##0.00" : "#,##0";
    }
    return entered;
}

}  // namespace kestrune::host
