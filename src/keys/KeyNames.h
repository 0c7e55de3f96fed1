#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "keys/Key.h"

namespace kestrune::keys::detail {

// How keys are called. The first row of a key is its own name, other rows are what people call it besides.
struct KeyName {
    std::string_view text;    // for a person; compared without case and blanks
    std::string_view on_key;  // in Application.OnKey's braces; empty where OnKey has no such name
    std::uint16_t base;
};

constexpr std::uint16_t base_of(Named named) { return static_cast<std::uint16_t>(named); }

inline constexpr auto key_names = std::to_array<KeyName>({
    {"Backspace", "BACKSPACE", base_of(Named::Backspace)},
    {"BS", "BS", base_of(Named::Backspace)},
    {"Break", "BREAK", base_of(Named::Break)},
    {"CapsLock", "CAPSLOCK", base_of(Named::CapsLock)},
    {"Clear", "CLEAR", base_of(Named::Clear)},
    {"Delete", "DELETE", base_of(Named::Delete)},
    {"Del", "DEL", base_of(Named::Delete)},
    {"Down", "DOWN", base_of(Named::Down)},
    {"DownArrow", "", base_of(Named::Down)},
    {"End", "END", base_of(Named::End)},
    {"KeypadEnter", "ENTER", base_of(Named::KeypadEnter)},
    {"Enter", "RETURN", base_of(Named::Enter)},
    {"Return", "", base_of(Named::Enter)},
    {"Escape", "ESCAPE", base_of(Named::Escape)},
    {"Esc", "ESC", base_of(Named::Escape)},
    {"Help", "HELP", base_of(Named::Help)},
    {"Home", "HOME", base_of(Named::Home)},
    {"Insert", "INSERT", base_of(Named::Insert)},
    {"Ins", "", base_of(Named::Insert)},
    {"Left", "LEFT", base_of(Named::Left)},
    {"LeftArrow", "", base_of(Named::Left)},
    {"NumLock", "NUMLOCK", base_of(Named::NumLock)},
    {"PageDown", "PGDN", base_of(Named::PageDown)},
    {"PgDn", "", base_of(Named::PageDown)},
    {"PageUp", "PGUP", base_of(Named::PageUp)},
    {"PgUp", "", base_of(Named::PageUp)},
    {"Right", "RIGHT", base_of(Named::Right)},
    {"RightArrow", "", base_of(Named::Right)},
    {"ScrollLock", "SCROLLLOCK", base_of(Named::ScrollLock)},
    {"Tab", "TAB", base_of(Named::Tab)},
    {"Up", "UP", base_of(Named::Up)},
    {"UpArrow", "", base_of(Named::Up)},
    {"Space", "", ' '},
    {"Spacebar", "", ' '},
    {"Comma", "", ','},
    {"Period", "", '.'},
    {"Dot", "", '.'},
    {"Semicolon", "", ';'},
    {"Minus", "", '-'},
    {"Equals", "", '='},
});

// The number of a function key, "F7" in either case; 0 when the text names none that there is.
constexpr int function_key_number(std::string_view text) {
    if (text.size() < 2 || text.size() > 3 || (text.front() != 'F' && text.front() != 'f')) return 0;
    int number = 0;
    for (const char digit : text.substr(1)) {
        if (digit < '0' || digit > '9') return 0;
        number = 10 * number + (digit - '0');
    }
    return text[1] != '0' && number <= 15 ? number : 0;
}

constexpr std::uint16_t function_key(int number) { return static_cast<std::uint16_t>(base_of(Named::F1) + number - 1); }

}  // namespace kestrune::keys::detail
