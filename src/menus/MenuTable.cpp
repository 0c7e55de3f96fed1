#include "menus/MenuTable.h"

#include <array>

#include "menus/CyclePopups.h"

namespace kestrune::menus {
namespace {

using enum MenuRow::Kind;

// clang-format off
constexpr auto menu = std::to_array<MenuRow>({
    {1, Popup, "&Smart Tools"},
      {2, Button, "Smart Copy &Right", "0"},
      {2, Button, "Smart Copy &Down", "1"},
      {2, Button, "Smart &Anchor", "2"},
      {2, Button, "Smart Formula &Column Spacing", "3", {}, true},
      {2, Button, "Smart Formula Row &Spacing", "4"},
      {2, Button, "Smart Fill Da&tes", "5", {}, true},
      {2, Button, "Smart Fill &Numbers", "6"},
      {2, Button, "Smart &Precedents", "7", {}, true},
      {2, Button, "Smart D&ependents", "8"},
      {2, Button, "Err&or Trap", "55", {}, true},
    {1, Popup, "&Format", {}, "UpdateTogglesPopup"},
      {2, Cycle, {}, "19"},
      {2, Cycle, {}, "20"},
      {2, Cycle, {}, "21"},
      {2, Cycle, {}, "22"},
      {2, Cycle, {}, "23"},
      {2, Cycle, {}, "24"},
      {2, Cycle, {}, "25"},
      {2, Cycle, {}, "26"},
      {2, Cycle, {}, "27"},
      {2, Cycle, {}, "28"},
      {2, Cycle, {}, "29"},
      {2, Cycle, {}, "30"},
      {2, Popup, "My &SmartCycles", {}, "UpdateTogglesPopup", true},
        {3, Cycle, {}, "31"},
        {3, Cycle, {}, "32"},
        {3, Cycle, {}, "33"},
        {3, Cycle, {}, "34"},
        {3, Cycle, {}, "35"},
        {3, Cycle, {}, "36"},
        {3, Cycle, {}, "37"},
        {3, Cycle, {}, "38"},
        {3, Cycle, {}, "39"},
        {3, Cycle, {}, "40"},
        {3, Cycle, {}, "41"},
        {3, Cycle, {}, "42"},
        {3, Cycle, {}, "43"},
        {3, Cycle, {}, "44"},
        {3, Cycle, {}, "45"},
      {2, Popup, "My Co&lor SmartCycles", {}, "UpdateTogglesPopup"},
        {3, Cycle, {}, "46"},
        {3, Cycle, {}, "47"},
        {3, Cycle, {}, "48"},
        {3, Cycle, {}, "49"},
        {3, Cycle, {}, "50"},
      {2, Button, "Abou&t SmartCycles", {}, "AboutSmartCycles"},
      {2, Popup, "Dec&imal Adjustment", {}, {}, true},
        {3, Button, "&Add Decimal Place", "51"},
        {3, Button, "&Remove Decimal Place", "52"},
        {3, Button, "Scale &Down by Thousands", "94", {}, true},
        {3, Button, "Scale &Up by Thousands", "95"},
      {2, Popup, "Bo&rders"},
        {3, Button, "&Top Border", "80"},
        {3, Button, "&Bottom Border", "81"},
        {3, Button, "&Left Border", "82"},
        {3, Button, "&Right Border", "83"},
        {3, Button, "&Outline Border", "84", {}, true},
        {3, Button, "&Grid Borders", "85"},
        {3, Button, "Remo&ve Borders", "86", {}, true},
      {2, Popup, "Font and Te&xt"},
        {3, Button, "&Increase Font Size", "53"},
        {3, Button, "&Decrease Font Size", "54"},
        {3, Button, "Toggle &Wrap Text", "96", {}, true},
        {3, Button, "&Separator Line", "57"},
        {3, Button, "&Clear Formats", "56", {}, true},
      {2, Popup, "St&yles and Paintbrush"},
        {3, Button, "&Capture BR Paintbrush", "17"},
        {3, Button, "&Apply BR Paintbrush", "18"},
        {3, Button, "A&bout BR Paintbrush", {}, "AboutBRPaintbrush"},
        {3, Button, "Apply &Sheet Style", "16", {}, true},
    {1, Popup, "&Indents and Sizes", {}, "UpdateTogglesPopup"},
      {2, Cycle, {}, "58"},
      {2, Cycle, {}, "97"},
      {2, Cycle, {}, "59", {}, true},
      {2, Cycle, {}, "60"},
      {2, Button, "&AutoFit Row Heights", "61", {}, true},
      {2, Button, "&Standard Column Width", "62"},
    {1, Popup, "&Rows and Columns"},
      {2, Button, "&Insert Rows", "63"},
      {2, Button, "Insert &Columns", "64"},
      {2, Button, "&Delete Rows", "65", {}, true},
      {2, Button, "De&lete Columns", "66"},
    {1, Popup, "&Grouping and Hiding"},
      {2, Button, "&Group Rows", "67"},
      {2, Button, "Group &Columns", "68"},
      {2, Button, "&Ungroup Rows", "69"},
      {2, Button, "U&ngroup Columns", "70"},
      {2, Button, "&Expand All Row Levels", "71", {}, true},
      {2, Button, "E&xpand All Column Levels", "72"},
      {2, Button, "Co&llapse Row Levels", "73"},
      {2, Button, "Coll&apse Column Levels", "74"},
      {2, Button, "&Toggle Outline Levels", "79"},
      {2, Button, "&Hide Rows", "75", {}, true},
      {2, Button, "H&ide Columns", "76"},
      {2, Button, "Unhide Ro&ws", "77"},
      {2, Button, "Unhide Colu&mns", "78"},
      {2, Button, "A&bout Hiding and Unhiding", {}, "AboutHidingAndUnhiding", true},
    {1, Popup, "&AutoColor"},
      {2, Button, "AutoColor &Selection", "15"},
      {2, Button, "AutoColor Wor&ksheet", "102"},
      {2, Button, "AutoColor &Workbook", "93"},
      {2, Button, "AutoColor As You &Type", {}, "ToggleAutoColor", true},
      {2, Button, "Toggle &Black Fonts", {}, "ToggleBlackFonts"},
    {1, Popup, "&Bookmarks"},
      {2, Button, "&Set Bookmark", "9"},
      {2, Button, "&Next Bookmark", "10"},
      {2, Button, "&Previous Bookmark", "11"},
      {2, Button, "&Remove Bookmarks", "12", {}, true},
    {1, Popup, "&Worksheets"},
      {2, Button, "&Next Worksheet", "13"},
      {2, Button, "&Previous Worksheet", "14"},
      {2, Button, "&First Worksheet", "91", {}, true},
      {2, Button, "&Last Worksheet", "92"},
    {1, Popup, "&View"},
      {2, Button, "Zoom &In", "87"},
      {2, Button, "Zoom &Out", "88"},
      {2, Button, "Toggle &Gridlines", "98", {}, true},
      {2, Button, "&Toggle Window Size", "89", {}, true},
      {2, Button, "&Maximize Window", "90"},
      {2, Popup, "&Place Window"},
        {3, Button, "&Maximize", "99.1"},
        {3, Button, "&Top Half", "99.2"},
        {3, Button, "&Bottom Half", "99.3"},
        {3, Button, "&Left Half", "99.4"},
        {3, Button, "&Right Half", "99.5"},
        {3, Button, "&Center", "99.6"},
    {1, Popup, "O&ptimization"},
      {2, Button, "Remove Unused Number &Formats", "100"},
      {2, Button, "Remove Invalid Range &Names", "101"},
    {1, Button, "&Undo", {}, "BRUndo", true},
    {1, Button, "Re&do", {}, "BRRedo"},
    {1, Button, "User S&ettings...", {}, "ShowUserSettings", true},
    {1, Button, "Hot &Key Manager...", {}, "ShowHotKeyManager"},
    {1, Button, "Show &Toolbar", {}, "ToggleToolbar"},
    {1, Button, "E&xamples Workbook", {}, "ShowExamplesWorkbook", true},
    {1, Button, "Kestrune &Help", {}, "ShowHelp"},
    {1, Button, "About Bra&nnoch...", {}, "ShowAboutBrannoch"},
});

// Icons that Office has had from the start: the currency, per cent, decimal and brush buttons, undo and redo.
constexpr auto toolbar = std::to_array<MenuRow>({
    {1, Button, "Undo", {}, "BRUndo", false, 128},
    {1, Button, "Redo", {}, "BRRedo", false, 129},
    {1, Button, "Smart Copy Right", "0", {}, true},
    {1, Button, "Smart Copy Down", "1"},
    {1, Cycle, {}, "19", {}, true},
    {1, Cycle, {}, "20"},
    {1, Cycle, {}, "21"},
    {1, Cycle, {}, "22"},
    {1, Cycle, {}, "23"},
    {1, Button, "Add Decimal Place", "51", {}, true, 398},
    {1, Button, "Remove Decimal Place", "52", {}, false, 399},
    {1, Button, "Capture BR Paintbrush", "17", {}, true},
    {1, Button, "Apply BR Paintbrush", "18", {}, false, 108},
    {1, Button, "AutoColor Selection", "15", {}, true},
});
// clang-format on

}  // namespace

std::span<const MenuRow> menu_rows() { return menu; }
std::span<const MenuRow> toolbar_rows() { return toolbar; }

std::string action_of(const MenuRow& row) {
    if (row.kind == Cycle) return std::string("mDOM.").append(cycle_popup(row.request).member);
    if (!row.request.empty()) return "mDOM.RunMacro";
    return row.member.empty() ? std::string() : std::string("mDOM.").append(row.member);
}

std::string tag_of(const MenuRow& row, bool on_toolbar) {
    std::string tag(on_toolbar ? "Kestrune.Toolbar." : "Kestrune.Menu.");
    if (!row.request.empty()) return tag.append(row.request);
    if (row.kind == Button) return tag.append(row.member);
    for (const char c : row.caption) {
        if (c != '&') tag += c;
    }
    return tag;
}

}  // namespace kestrune::menus
