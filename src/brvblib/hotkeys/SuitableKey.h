#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "keys/KeyText.h"

namespace kestrune::brvblib {

// Why a key can be no hot key; empty when it can.
constexpr std::string_view unsuitable(const keys::Key& pressed) {
    using keys::key;
    using keys::Named;
    constexpr auto of_windows = std::to_array<keys::Key>(
        {key("Alt+F4"), key("Alt+Tab"), key("Alt+Shift+Tab"), key("Alt+Escape"), key("Alt+Shift+Escape"),
         key("Alt+Space"), key("Ctrl+Escape"), key("Ctrl+Shift+Escape"), key("Ctrl+Alt+Delete")});
    constexpr auto for_entering =
        std::to_array<Named>({Named::Backspace, Named::Delete, Named::Down, Named::Enter, Named::Escape,
                              Named::KeypadEnter, Named::Left, Named::Right, Named::Tab, Named::Up});
    constexpr auto locks = std::to_array<Named>({Named::CapsLock, Named::NumLock, Named::ScrollLock});
    const auto named = [&](Named name) { return pressed.is(name); };
    if (std::ranges::find(of_windows, pressed) != of_windows.end()) return "belongs to Windows";
    if (std::ranges::any_of(locks, named)) return "only switches what other keys do";
    if (pressed.ctrl || pressed.alt) return {};
    if (pressed.shows_character()) return "types a character; hold Ctrl or Alt with it";
    if (std::ranges::any_of(for_entering, named)) return "is needed to enter and to move; hold Ctrl or Alt with it";
    return {};
}

// Whether the key types a character on many keyboards, where AltGr is Ctrl and Alt together.
constexpr bool may_type(const keys::Key& key) { return key.ctrl && key.alt && key.shows_character(); }

}  // namespace kestrune::brvblib
