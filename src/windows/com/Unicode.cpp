#include "windows/com/Unicode.h"

#include <cstddef>
#include <cstdint>

namespace kestrune::windows {
namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool is_high(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool is_low(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void append_utf8(std::string& text, char32_t code) {
    const auto tail = [&](unsigned shift) { text.push_back(static_cast<char>(0x80 | ((code >> shift) & 0x3F))); };
    if (code < 0x80) {
        text.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        text.push_back(static_cast<char>(0xC0 | (code >> 6)));
        tail(0);
    } else if (code < 0x10000) {
        text.push_back(static_cast<char>(0xE0 | (code >> 12)));
        tail(6);
        tail(0);
    } else {
        text.push_back(static_cast<char>(0xF0 | (code >> 18)));
        tail(12);
        tail(6);
        tail(0);
    }
}

// The code point at the front of the text, taken off it; a byte that begins none is taken alone.
char32_t take_code(std::string_view& text) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint8_t first = byte(0);
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    char32_t code = length <= 1 ? first : first & (0x7FU >> length);
    bool whole = length != 0 && first <= 0xF4 && length <= text.size();
    for (std::size_t i = 1; whole && i < length; ++i) {
        whole = (byte(i) & 0xC0) == 0x80;
        code = (code << 6) | (byte(i) & 0x3FU);
    }
    whole = whole && code >= smallest[length] && code <= 0x10FFFF;
    text.remove_prefix(whole ? length : 1);
    return whole ? code : replacement;
}

}  // namespace

std::string to_utf8(std::wstring_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (is_high(code) && i + 1 < text.size() && is_low(text[i + 1])) {
            code = 0x10000 + ((code - 0xD800) << 10) + (static_cast<char32_t>(text[++i]) - 0xDC00);
        }
        append_utf8(result, code);
    }
    return result;
}

std::wstring to_utf16(std::string_view text) {
    std::wstring result;
    result.reserve(text.size());
    while (!text.empty()) {
        const char32_t code = take_code(text);
        if (code < 0x10000) {
            result.push_back(static_cast<wchar_t>(code));
        } else {
            result.push_back(static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10)));
            result.push_back(static_cast<wchar_t>(0xDC00 + (code & 0x3FF)));
        }
    }
    return result;
}

}  // namespace kestrune::windows
