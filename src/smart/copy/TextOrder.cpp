#include "smart/copy/TextOrder.h"

#include <cstddef>

namespace kestrune::smart {
namespace {

// The next character, and the text without it. A byte that begins none stands for itself.
char32_t take(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80         ? 1
                               : lead >> 5 == 0x6  ? 2
                               : lead >> 4 == 0xE  ? 3
                               : lead >> 3 == 0x1E ? 4
                                                   : 1;
    char32_t character = length == 1 ? lead : lead & (0x7F >> length);
    for (std::size_t i = 1; i < length && i < text.size(); ++i) {
        character = character << 6 | (static_cast<unsigned char>(text[i]) & 0x3F);
    }
    text.remove_prefix(length < text.size() ? length : text.size());
    return character;
}

constexpr bool between(char32_t c, char32_t first, char32_t last) { return c >= first && c <= last; }

char32_t small(char32_t c) {
    if (between(c, U'A', U'Z')) return c + 32;
    if (between(c, 0xC0, 0xDE) && c != 0xD7) return c + 32;
    if (c == 0x178) return 0xFF;
    // Pairs of a capital and its small letter; the capital is even in some rows and odd in others.
    const bool even = between(c, 0x100, 0x12F) || between(c, 0x132, 0x137) || between(c, 0x14A, 0x177) ||
                      between(c, 0x460, 0x481) || between(c, 0x48A, 0x4BF);
    const bool odd = between(c, 0x139, 0x148) || between(c, 0x179, 0x17E);
    if (even) return c | 1;
    if (odd) return c % 2 == 1 ? c + 1 : c;
    if (c == 0x386) return 0x3AC;
    if (between(c, 0x388, 0x38A)) return c + 37;
    if (c == 0x38C) return 0x3CC;
    if (between(c, 0x38E, 0x38F)) return c + 63;
    if (between(c, 0x391, 0x3AB) && c != 0x3A2) return c + 32;
    if (between(c, 0x400, 0x40F)) return c + 80;
    if (between(c, 0x410, 0x42F)) return c + 32;
    return c;
}

}  // namespace

int compare_texts(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        const char32_t from_a = small(take(a));
        const char32_t from_b = small(take(b));
        if (from_a != from_b) return from_a < from_b ? -1 : 1;
    }
    return a.empty() ? (b.empty() ? 0 : -1) : 1;
}

}  // namespace kestrune::smart
