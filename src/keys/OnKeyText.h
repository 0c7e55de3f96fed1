#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "keys/Key.h"

namespace kestrune::keys {

// Keys as Excel's Application.OnKey spells them: "+" for Shift, "^" for Ctrl, "%" for Alt, then one character or a name
// in braces, "^+4", "%{PGUP}", "^{+}"; "~" is Enter.
// https://learn.microsoft.com/office/vba/api/excel.application.onkey

// The one key of a text; nothing when OnKey would refuse it.
std::optional<Key> read_on_key(std::string_view text);

std::string on_key_text(const Key& key);

}  // namespace kestrune::keys
