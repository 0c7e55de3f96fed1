#include "formula/SheetName.h"

#include <array>
#include <cstdint>
#include <utility>

#include "formula/A1.h"
#include "formula/Characters.h"
#include "formula/R1C1.h"

namespace kestrune::formula {
namespace {

// Blocks of Unicode that hold signs rather than letters, as far as they turn up in sheet names.
constexpr std::array<std::pair<char32_t, char32_t>, 14> sign_blocks{{{0x80, 0xA9},
                                                                     {0xAB, 0xB1},
                                                                     {0xB6, 0xB6},
                                                                     {0xB8, 0xB8},
                                                                     {0xBB, 0xBF},
                                                                     {0xD7, 0xD7},
                                                                     {0xF7, 0xF7},
                                                                     {0x2000, 0x206F},
                                                                     {0x20A0, 0x20CF},
                                                                     {0x2190, 0x2BFF},
                                                                     {0x3000, 0x3004},
                                                                     {0x3008, 0x3020},
                                                                     {0xFE30, 0xFE4F},
                                                                     {0x1F000, 0x1FAFF}}};

char32_t next_character(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    const unsigned more = lead >= 0xF0U ? 3 : lead >= 0xE0U ? 2 : lead >= 0xC0U ? 1 : 0;
    char32_t character = lead >= 0x80U ? lead & (0x3FU >> more) : lead;
    for (unsigned i = 0; i < more && at < text.size(); ++i)
        character = (character << 6U) | (static_cast<unsigned char>(text[at++]) & 0x3FU);
    return character;
}

bool is_sign(char32_t character) {
    for (const auto& [first, last] : sign_blocks)
        if (character >= first && character <= last) return true;
    return false;
}

// "R", "RC", "C5", "R1C1" and whatever continues them: in R1C1 notation Excel reads the reference first.
bool starts_like_r1c1(std::string_view sheet) {
    Reference reference;
    for (std::size_t length = sheet.size(); length > 0; --length) {
        if (match_r1c1(sheet.substr(0, length), reference) != length) continue;
        const bool plain_letter = !reference.first_row.absolute && !reference.first_column.absolute;
        return length == sheet.size() || (!plain_letter && reference.has_columns());
    }
    return false;
}

std::string unquoted(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        out += text[i];
        if (text[i] == '\'' && i + 1 < text.size() && text[i + 1] == '\'') ++i;
    }
    return out;
}

}  // namespace

bool needs_quotes(std::string_view sheet) {
    if (sheet.empty() || is_digit(sheet.front()) || sheet.front() == '.') return true;
    for (std::size_t at = 0; at < sheet.size();) {
        const char32_t character = next_character(sheet, at);
        if (character < 0x80) {
            const char c = static_cast<char>(character);
            if (!is_letter(c) && !is_digit(c) && c != '_' && c != '.') return true;
        } else if (is_sign(character)) {
            return true;
        }
    }
    return parse_cell_reference(sheet).has_value() || equal_ignoring_case(sheet, "TRUE") ||
           equal_ignoring_case(sheet, "FALSE") || starts_like_r1c1(sheet.substr(0, 16));
}

std::string quoted_sheet(std::string_view sheet) {
    if (!needs_quotes(sheet)) return std::string(sheet);
    std::string out = "'";
    for (const char c : sheet) {
        out += c;
        if (c == '\'') out += c;
    }
    out += '\'';
    return out;
}

SheetPrefix parse_sheet_prefix(std::string_view prefix) {
    SheetPrefix result;
    if (!prefix.empty() && prefix.back() == '!') prefix.remove_suffix(1);
    std::string text;
    if (prefix.size() >= 2 && prefix.front() == '\'' && prefix.back() == '\'')
        text = unquoted(prefix.substr(1, prefix.size() - 2));
    else
        text = prefix;
    // A folder may hold brackets too; the workbook's are the last ones.
    if (const auto close = text.rfind(']'); close != std::string::npos) {
        if (const auto open = text.rfind('[', close); open != std::string::npos) {
            result.book = text.substr(0, open) + text.substr(open + 1, close - open - 1);
            text.erase(0, close + 1);
        }
    }
    const auto colon = text.find(':');
    result.first_sheet = text.substr(0, colon);
    result.last_sheet = colon == std::string::npos ? result.first_sheet : text.substr(colon + 1);
    return result;
}

bool names_sheet(std::string_view prefix, std::string_view sheet) {
    if (prefix.size() == sheet.size() + 1 && prefix.front() != '\'')
        return equal_ignoring_case(prefix.substr(0, sheet.size()), sheet);
    if (prefix.empty() || (prefix.front() != '\'' && prefix.front() != '[')) return false;
    const SheetPrefix parts = parse_sheet_prefix(prefix);
    // [0] is the workbook that holds the formula.
    return (parts.book.empty() || parts.book == "0") && equal_ignoring_case(parts.first_sheet, sheet) &&
           equal_ignoring_case(parts.last_sheet, sheet);
}

}  // namespace kestrune::formula
