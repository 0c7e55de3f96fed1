#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kestrune::keys {

// Keys that show no character. Their numbers lie behind those of the characters.
enum class Named : std::uint16_t {
    Backspace = 256,
    Break,
    CapsLock,
    Clear,
    Delete,
    Down,
    End,
    KeypadEnter,
    Enter,
    Escape,
    Help,
    Home,
    Insert,
    Left,
    NumLock,
    PageDown,
    PageUp,
    Right,
    ScrollLock,
    Tab,
    Up,
    F1,
    F15 = F1 + 14
};

// One key and what is held with it. A key that shows a character is the one that shows it on a US keyboard without
// Shift, so that Ctrl+$ and Ctrl+Shift+4 are one key.
struct Key {
    std::uint16_t base = 0;  // a character, letters lower-case, or a Named
    bool ctrl = false;
    bool alt = false;
    bool shift = false;

    constexpr auto operator<=>(const Key&) const = default;

    [[nodiscard]] constexpr bool shows_character() const { return base < static_cast<std::uint16_t>(Named::Backspace); }
    [[nodiscard]] constexpr bool is(Named named) const { return base == static_cast<std::uint16_t>(named); }
    [[nodiscard]] constexpr bool is_function_key() const {
        return base >= static_cast<std::uint16_t>(Named::F1) && base <= static_cast<std::uint16_t>(Named::F15);
    }
};

namespace detail {

inline constexpr std::string_view unshifted = "`1234567890-=[]\\;',./";
inline constexpr std::string_view shifted = "~!@#$%^&*()_+{}|:\"<>?";

}  // namespace detail

// The key of a character, Shift included where a US keyboard needs it; nothing for what such a keyboard does not have.
// The case of a letter means nothing.
constexpr std::optional<Key> key_of_character(char character) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
    const bool letter = character >= 'a' && character <= 'z';
    if (letter || character == ' ' || detail::unshifted.find(character) != std::string_view::npos) {
        return Key{static_cast<std::uint16_t>(character)};
    }
    if (const std::size_t place = detail::shifted.find(character); place != std::string_view::npos) {
        return Key{static_cast<std::uint16_t>(detail::unshifted[place]), false, false, true};
    }
    return std::nullopt;
}

}  // namespace kestrune::keys
