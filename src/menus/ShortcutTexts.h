#pragma once

#include <map>
#include <string>
#include <string_view>

#include "automation/Text.h"
#include "core/bridges/SharedState.h"
#include "menus/MenuTable.h"

namespace kestrune::menus {

// The keys that the commands have now, asked for once.
class ShortcutTexts {
  public:
    explicit ShortcutTexts(const core::SharedState& shared);

    // The key of a command, by its number or its macro; empty for none.
    [[nodiscard]] std::string key(std::string_view command) const;
    // "Shortcut: Ctrl+Shift+4", or "[No shortcut assigned]".
    [[nodiscard]] std::string text(std::string_view command) const;

  private:
    std::map<std::string, std::string, automation::TextLess> keys_;
};

// Whether a key can be given to what a row does.
bool has_key(const MenuRow& row);

}  // namespace kestrune::menus
