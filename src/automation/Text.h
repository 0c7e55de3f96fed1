#pragma once

#include <string>
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

// The same without line ends as well: what stands between two tags, laid out by a person.
constexpr std::string_view without_white_space(std::string_view text) {
    constexpr std::string_view white = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(white);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(white) + 1 - begin);
}

// A text for a message of one line: control characters become blanks, and what is too long is cut off. UTF-8.
inline std::string one_line(std::string_view text, std::size_t longest = 500) {
    text = without_white_space(text);
    const bool cut = text.size() > longest;
    if (cut) {
        while (longest > 0 && (static_cast<unsigned char>(text[longest]) & 0xC0) == 0x80) --longest;
        text = text.substr(0, longest);
    }
    std::string line(text);
    for (char& c : line) {
        if (static_cast<unsigned char>(c) < ' ') c = ' ';
    }
    return cut ? line + "..." : line;
}

}  // namespace kestrune::automation
