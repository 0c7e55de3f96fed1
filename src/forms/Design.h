#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace kestrune::forms {

enum class Kind : std::uint8_t {
    Label,
    Frame,   // holds controls; option buttons in it exclude each other
    Option,  // option button
    Check,   // check box
    Text,    // text box
    Combo,   // one of several texts, or any text when it is editable
    List,
    Spin,  // two arrows that change a number
    Push,  // push button
    Tabs,  // holds controls on several pages, of which one is seen
    Image,
    Sample,  // a text that shows how it looks in a font, with a fill and edges
};

// Where a control stands, seen from the one before it in the same container.
enum class Place : std::uint8_t {
    Below,     // on a line of its own, or the first of a line
    Beside,    // at its right
    Column,    // at its right, where all of the container's Column controls begin
    Attached,  // at its right without a gap, as a spin button at its box
};

enum class Stretch : std::uint8_t {
    None,
    Across,  // takes the width that its line leaves; frames, tabs and lists always do
    Both,    // and the height that is left over, as a list in a form that can be resized
};

enum class Role : std::uint8_t {
    None,
    Default,  // the push button that Enter presses
    Cancel,   // and Escape
};

// A column of a list.
struct ListColumn {
    std::string_view head;
    double width = 0;  // points; the last one takes what is left
};

// One control of a form as it is until code changes it. All sizes are points.
struct ControlDesign {
    std::string_view name;
    Kind kind = Kind::Label;
    std::string_view caption = {};
    char accelerator = 0;  // pressed with Alt; its first occurrence in the caption is underlined. A label's goes to the
                           // control behind it
    std::string_view in = {};  // the frame or tabs that hold it; empty for the form itself
    Place place = Place::Below;
    Stretch stretch = Stretch::None;
    Role role = Role::None;
    std::string_view tip = {};
    double width = 0;                              // 0: what it needs
    double height = 0;                             // 0: what it needs
    double indent = 0;                             // more room at its left
    std::int32_t page = 0;                         // of tabs, from 0 on
    std::span<const std::string_view> items = {};  // of combo boxes, lists and tabs (their pages)
    std::span<const ListColumn> columns = {};      // of a list whose items have several texts, parted by tabs
    bool multi_line = false;                       // a text box of several lines, broken where they are too long
    bool locked = false;                           // a text box that is read, and not written in
    bool takes_keys = false;                       // a text box that takes a key as it is pressed: "Ctrl+Shift+4"
    bool editable = false;                         // a combo box takes any text
    bool pictured = false;                         // a combo box whose items have pictures before their texts
    std::int32_t min = 0;                          // of spin buttons
    std::int32_t max = 100;
};

// The last two of most dialogs.
inline constexpr std::array<ControlDesign, 2> ok_and_cancel{{
    {.name = "btnOK", .kind = Kind::Push, .caption = "OK", .role = Role::Default},
    {.name = "btnCancel", .kind = Kind::Push, .caption = "Cancel", .place = Place::Beside, .role = Role::Cancel},
}};

// Parts of a form that it shares with others, one after the other.
template <std::size_t... sizes>
constexpr auto joined(const std::array<ControlDesign, sizes>&... parts) {
    std::array<ControlDesign, (sizes + ...)> all{};
    auto end = all.begin();
    ((end = std::copy(parts.begin(), parts.end(), end)), ...);
    return all;
}

// A form as it is until code changes it: its controls in tab order, containers before what they hold.
struct FormDesign {
    std::string_view name;  // of its class, "fSmartCopy"
    std::string_view caption;
    std::span<const ControlDesign> controls;
    bool sizable = false;  // by the person, who finds it again as they left it
    double width = 0;      // inside at first, points; 0: what it needs, which is also the least
    double height = 0;
};

}  // namespace kestrune::forms
