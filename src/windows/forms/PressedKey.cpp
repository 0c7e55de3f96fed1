#include "windows/forms/PressedKey.h"

#include "keys/KeyText.h"

namespace kestrune::windows {
namespace {

using keys::Named;

struct VirtualKey {
    WPARAM code;
    std::uint16_t base;
};

constexpr std::uint16_t base_of(Named named) { return static_cast<std::uint16_t>(named); }

// Characters stand for their keys on a US keyboard.
constexpr VirtualKey virtual_keys[] = {
    {VK_SPACE, ' '},
    {VK_OEM_1, ';'},
    {VK_OEM_PLUS, '='},
    {VK_OEM_COMMA, ','},
    {VK_OEM_MINUS, '-'},
    {VK_OEM_PERIOD, '.'},
    {VK_OEM_2, '/'},
    {VK_OEM_3, '`'},
    {VK_OEM_4, '['},
    {VK_OEM_5, '\\'},
    {VK_OEM_6, ']'},
    {VK_OEM_7, '\''},
    {VK_BACK, base_of(Named::Backspace)},
    {VK_CANCEL, base_of(Named::Break)},
    {VK_PAUSE, base_of(Named::Break)},
    {VK_CLEAR, base_of(Named::Clear)},
    {VK_DELETE, base_of(Named::Delete)},
    {VK_DOWN, base_of(Named::Down)},
    {VK_END, base_of(Named::End)},
    {VK_RETURN, base_of(Named::Enter)},
    {VK_ESCAPE, base_of(Named::Escape)},
    {VK_HELP, base_of(Named::Help)},
    {VK_HOME, base_of(Named::Home)},
    {VK_INSERT, base_of(Named::Insert)},
    {VK_LEFT, base_of(Named::Left)},
    {VK_NEXT, base_of(Named::PageDown)},
    {VK_PRIOR, base_of(Named::PageUp)},
    {VK_RIGHT, base_of(Named::Right)},
    {VK_TAB, base_of(Named::Tab)},
    {VK_UP, base_of(Named::Up)},
};

std::uint16_t base_of(WPARAM code) {
    if (code >= 'A' && code <= 'Z') return static_cast<std::uint16_t>(code - 'A' + 'a');
    if (code >= '0' && code <= '9') return static_cast<std::uint16_t>(code);
    if (code >= VK_F1 && code <= VK_F15) return static_cast<std::uint16_t>(base_of(Named::F1) + (code - VK_F1));
    for (const VirtualKey& key : virtual_keys)
        if (key.code == code) return key.base;
    return 0;
}

bool held(int key) { return GetKeyState(key) < 0; }

}  // namespace

std::optional<std::string> pressed_key_text(WPARAM virtual_key) {
    const std::uint16_t base = base_of(virtual_key);
    if (base == 0) return std::nullopt;
    return keys::key_text({.base = base, .ctrl = held(VK_CONTROL), .alt = held(VK_MENU), .shift = held(VK_SHIFT)});
}

}  // namespace kestrune::windows
