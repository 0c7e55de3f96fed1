#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kestrune::menus {

// One control of the product's menu or toolbar. Exactly one of member and request says what it does, a popup that only
// holds others has neither.
struct MenuRow {
    enum class Kind : std::uint8_t {
        Popup,   // holds the rows behind it that are one level deeper; member: what is run when it opens
        Cycle,   // a popup with the steps of a SmartCycle, the command of request; its caption is the cycle's name
        Button,  // runs a command or a member
    };
    std::int32_t level = 1;  // 1 directly on the menu or the toolbar
    Kind kind = Kind::Button;
    std::string_view caption;       // "&" in front of the access key; without one it gets a free one. Empty for cycles
    std::string_view request = {};  // "20", "99.2"
    std::string_view member = {};   // of iGlobal
    bool line = false;              // a line in front of it
    std::int32_t face_id = 0;       // the number of one of Office's icons; 0 for none
};

// Everything that stands on "Kestrun&e", from top to bottom: each of the commands once. The contents of the popups of
// SmartCycles come from the user settings.
std::span<const MenuRow> menu_rows();

// The toolbar, from left to right: what is pressed most.
std::span<const MenuRow> toolbar_rows();

inline constexpr std::string_view product_menu_caption = "Kestrun&e";
inline constexpr std::string_view toolbar_name = "Kestrune";

// What runs a row: "mDOM.RunMacro" for a command, "mDOM." and the member otherwise; empty for nothing.
std::string action_of(const MenuRow& row);
// The tag by which a row's control is found again: "Kestrune.Menu.20", "Kestrune.Toolbar.BRUndo".
std::string tag_of(const MenuRow& row, bool on_toolbar);

}  // namespace kestrune::menus
