#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace kestrune::windows {

// The key that a WM_KEYDOWN or WM_SYSKEYDOWN is about, with what is held now, as people write it: "Ctrl+Shift+4".
// Nothing for keys that are only held, and for those that no hot key can be made of.
std::optional<std::string> pressed_key_text(WPARAM virtual_key);

}  // namespace kestrune::windows
