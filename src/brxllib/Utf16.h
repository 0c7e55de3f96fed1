#pragma once

#include <cstdint>
#include <string_view>

namespace kestrune::brxllib {

// How many characters Visual Basic counts in a UTF-8 text: two for one beyond the basic plane.
constexpr std::int32_t utf16_length(std::string_view text) {
    std::int32_t count = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80U) ++count;
        if (byte >= 0xF0U) ++count;
    }
    return count;
}

}  // namespace kestrune::brxllib
