#pragma once

#include <string_view>

namespace kestrune::automation {

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Whether two names are equal but for the case of their ASCII letters, as member names compare.
constexpr bool same_text(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lower(a[i]) != lower(b[i])) return false;
    }
    return true;
}

constexpr bool text_less(std::string_view a, std::string_view b) {
    const std::size_t shorter = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t i = 0; i < shorter; ++i) {
        if (lower(a[i]) != lower(b[i])) return lower(a[i]) < lower(b[i]);
    }
    return a.size() < b.size();
}

// Orders the keys of a map in which names are looked up whatever their case.
struct TextLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return text_less(a, b); }
};

// The text without blanks and tabs at its ends.
constexpr std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

}  // namespace kestrune::automation
