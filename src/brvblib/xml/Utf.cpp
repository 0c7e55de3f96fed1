#include "brvblib/xml/Utf.h"

namespace kestrune::brvblib {
namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool is_high(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool is_low(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

char32_t byte_at(std::string_view text, std::size_t i) { return static_cast<unsigned char>(text[i]); }

}  // namespace

char32_t take_utf8(std::string_view& text) {
    const char32_t first = byte_at(text, 0);
    // How many bytes follow, the bits of the first, the least code that needs so many.
    std::size_t more = 0;
    char32_t code = first;
    char32_t least = 0;
    if (first >= 0xF0 && first < 0xF8) {
        more = 3, code = first & 0x07U, least = 0x10000;
    } else if (first >= 0xE0 && first < 0xF0) {
        more = 2, code = first & 0x0FU, least = 0x800;
    } else if (first >= 0xC0 && first < 0xE0) {
        more = 1, code = first & 0x1FU, least = 0x80;
    }
    bool good = (first < 0x80 || more > 0) && text.size() > more;
    for (std::size_t i = 1; good && i <= more; ++i) {
        good = (byte_at(text, i) & 0xC0U) == 0x80;
        code = code << 6U | (byte_at(text, i) & 0x3FU);
    }
    if (!good || code < least || code > 0x10FFFF || is_high(code) || is_low(code)) {
        text.remove_prefix(1);
        return no_character;
    }
    text.remove_prefix(more + 1);
    return code;
}

void append_utf8(std::string& text, char32_t c) {
    const auto add = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (c < 0x80) {
        add(c);
    } else if (c < 0x800) {
        add(0xC0U | c >> 6U);
        add(0x80U | (c & 0x3FU));
    } else if (c < 0x10000) {
        add(0xE0U | c >> 12U);
        add(0x80U | (c >> 6U & 0x3FU));
        add(0x80U | (c & 0x3FU));
    } else {
        add(0xF0U | c >> 18U);
        add(0x80U | (c >> 12U & 0x3FU));
        add(0x80U | (c >> 6U & 0x3FU));
        add(0x80U | (c & 0x3FU));
    }
}

std::string utf8_of_utf16(std::string_view bytes, bool big_endian) {
    const std::size_t units = bytes.size() / 2;
    const auto unit = [&](std::size_t i) {
        const char32_t a = byte_at(bytes, 2 * i);
        const char32_t b = byte_at(bytes, 2 * i + 1);
        return big_endian ? a << 8U | b : b << 8U | a;
    };
    std::string text;
    text.reserve(units);
    for (std::size_t i = 0; i < units; ++i) {
        char32_t code = unit(i);
        if (is_high(code) && i + 1 < units && is_low(unit(i + 1))) {
            code = 0x10000 + ((code - 0xD800) << 10U) + (unit(++i) - 0xDC00);
        } else if (is_high(code) || is_low(code)) {
            code = replacement;
        }
        append_utf8(text, code);
    }
    if (bytes.size() % 2 != 0) append_utf8(text, replacement);
    return text;
}

}  // namespace kestrune::brvblib
