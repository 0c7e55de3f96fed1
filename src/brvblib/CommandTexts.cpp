#include "brvblib/CommandTexts.h"

#include "brvblib/hotkeys/SuitableKey.h"
#include "keys/KeyText.h"

namespace kestrune::brvblib {

// One row a command, its number behind it: name, description, key, group, topic.
//
// The default keys leave alone what modellers press without thinking (Ctrl+Shift+L and V, the arrows, Ctrl+; and the
// like), every Ctrl+Alt with a character, which types one on most European keyboards, and what Remote Desktop takes
// (Ctrl+Alt with Home, End, PageUp, PageDown). Where they cover a key of Excel's own, the command does what that key
// does and more: Ctrl+Shift+4 gives a currency format. Commands that remove things, and those that Excel has a good key
// for (Ctrl+PageDown, Ctrl+Alt+=), have none.
// clang-format off
constexpr std::array<CommandText, 103> command_texts{{
    {"Smart Copy Right", "Copies the selected column to the right, onto the columns that the interval, always and fill rules choose.", "Ctrl+Shift+R", "Smart Tools", "SmartCopy"},  // 0
    {"Smart Copy Down", "Copies the selected row down, onto the rows that the interval, always and fill rules choose.", "Ctrl+Shift+D", "Smart Tools", "SmartCopy"},  // 1
    {"Smart Anchor", "Steps the references of the selected formulas through relative, absolute and the two mixed forms.", "Ctrl+Shift+A", "Smart Tools", "SmartAnchor"},  // 2
    {"Smart Formula Column Spacing", "Fills the selection across with its first formulas, the references moving at a pace of their own.", "", "Smart Tools", "SmartSpacing"},  // 3
    {"Smart Formula Row Spacing", "Fills the selection down with its first formulas, the references moving at a pace of their own.", "", "Smart Tools", "SmartSpacing"},  // 4
    {"Smart Fill Dates", "Fills a row or column with dates, a number of days, months or years apart.", "", "Smart Tools", "SmartFill"},  // 5
    {"Smart Fill Numbers", "Fills a row or column with numbers from a start to an end value.", "", "Smart Tools", "SmartFill"},  // 6
    {"Smart Precedents", "Lists the cells that the active cell's formula refers to, and goes to the one chosen.", "Ctrl+Shift+[", "Smart Tools", "SmartTrace"},  // 7
    {"Smart Dependents", "Lists the cells whose formulas refer to the active cell, and goes to the one chosen.", "Ctrl+Shift+]", "Smart Tools", "SmartTrace"},  // 8
    {"Set Bookmark", "Sets a bookmark at the selection.", "Ctrl+Shift+B", "Bookmarks", "Bookmarks"},  // 9
    {"Next Bookmark", "Goes to the workbook's next bookmark.", "Ctrl+Shift+N", "Bookmarks", "Bookmarks"},  // 10
    {"Previous Bookmark", "Goes to the workbook's previous bookmark.", "Ctrl+Shift+P", "Bookmarks", "Bookmarks"},  // 11
    {"Remove Bookmarks", "Removes every bookmark of the workbook.", "", "Bookmarks", "Bookmarks"},  // 12
    {"Next Worksheet", "Goes to the next visible worksheet.", "", "Worksheets", "Worksheets"},  // 13
    {"Previous Worksheet", "Goes to the previous visible worksheet.", "", "Worksheets", "Worksheets"},  // 14
    {"AutoColor Selection", "Colors the selected cells by what they hold: inputs, formulas and links.", "Ctrl+Shift+I", "AutoColor", "AutoColor"},  // 15
    {"Apply Sheet Style", "Applies the sheet style of the user settings to the whole active sheet, after asking.", "", "Styles", "SheetStyle"},  // 16
    {"Capture BR Paintbrush", "Captures the active cell's formatting as a new style for the Paintbrush.", "Ctrl+Shift+C", "Styles", "Paintbrush"},  // 17
    {"Apply BR Paintbrush", "Paints the captured style onto the selection.", "Ctrl+Shift+X", "Styles", "Paintbrush"},  // 18
    {"General Number SmartCycle", "Steps the selection through number formats.", "Ctrl+Shift+1", "Style SmartCycles", "StyleCycles"},  // 19
    {"Currency SmartCycle", "Steps the selection through currency formats.", "Ctrl+Shift+4", "Style SmartCycles", "StyleCycles"},  // 20
    {"Percent SmartCycle", "Steps the selection through percent formats.", "Ctrl+Shift+5", "Style SmartCycles", "StyleCycles"},  // 21
    {"Multiple SmartCycle", "Steps the selection through multiple formats, such as 2.5x.", "Ctrl+Shift+M", "Style SmartCycles", "StyleCycles"},  // 22
    {"Date SmartCycle", "Steps the selection through date and time formats.", "Ctrl+Shift+3", "Style SmartCycles", "StyleCycles"},  // 23
    {"Binary Number SmartCycle", "Steps the selection through formats for yes/no flags, and shows any value but 0 and 1 in red.", "Ctrl+Shift+Y", "Style SmartCycles", "StyleCycles"},  // 24
    {"Underline SmartCycle", "Steps the selection through underlines.", "Ctrl+Shift+U", "Style SmartCycles", "StyleCycles"},  // 25
    {"Center SmartCycle", "Steps the selection through centered, centered across and general alignment, unmerging merged cells.", "Ctrl+Shift+E", "Style SmartCycles", "StyleCycles"},  // 26
    {"Horizontal Alignment SmartCycle", "Steps the selection through horizontal alignments.", "Ctrl+Shift+H", "Style SmartCycles", "StyleCycles"},  // 27
    {"Vertical Alignment SmartCycle", "Steps the selection through vertical alignments.", "", "Style SmartCycles", "StyleCycles"},  // 28
    {"Border SmartCycle", "Steps the selection through borders.", "Ctrl+Shift+7", "Style SmartCycles", "StyleCycles"},  // 29
    {"Cell Back Color SmartCycle", "Steps the selection through background colors.", "Ctrl+Shift+K", "Style SmartCycles", "StyleCycles"},  // 30
    {"My SmartCycle 1", "Steps the selection through the styles of your own SmartCycle 1.", "Ctrl+Shift+S", "My Style SmartCycles", "MyCycles"},  // 31
    {"My SmartCycle 2", "Steps the selection through the styles of your own SmartCycle 2.", "", "My Style SmartCycles", "MyCycles"},  // 32
    {"My SmartCycle 3", "Steps the selection through the styles of your own SmartCycle 3.", "", "My Style SmartCycles", "MyCycles"},  // 33
    {"My SmartCycle 4", "Steps the selection through the styles of your own SmartCycle 4.", "Ctrl+Shift+Q", "My Style SmartCycles", "MyCycles"},  // 34
    {"My SmartCycle 5", "Steps the selection through the styles of your own SmartCycle 5.", "", "My Style SmartCycles", "MyCycles"},  // 35
    {"My SmartCycle 6", "Steps the selection through the styles of your own SmartCycle 6.", "", "My Style SmartCycles", "MyCycles"},  // 36
    {"My SmartCycle 7", "Steps the selection through the styles of your own SmartCycle 7.", "", "My Style SmartCycles", "MyCycles"},  // 37
    {"My SmartCycle 8", "Steps the selection through the styles of your own SmartCycle 8.", "", "My Style SmartCycles", "MyCycles"},  // 38
    {"My SmartCycle 9", "Steps the selection through the styles of your own SmartCycle 9.", "", "My Style SmartCycles", "MyCycles"},  // 39
    {"My SmartCycle 10", "Steps the selection through the styles of your own SmartCycle 10.", "", "My Style SmartCycles", "MyCycles"},  // 40
    {"My SmartCycle 11", "Steps the selection through the styles of your own SmartCycle 11.", "", "My Style SmartCycles", "MyCycles"},  // 41
    {"My SmartCycle 12", "Steps the selection through the styles of your own SmartCycle 12.", "", "My Style SmartCycles", "MyCycles"},  // 42
    {"My SmartCycle 13", "Steps the selection through the styles of your own SmartCycle 13.", "", "My Style SmartCycles", "MyCycles"},  // 43
    {"My SmartCycle 14", "Steps the selection through the styles of your own SmartCycle 14.", "", "My Style SmartCycles", "MyCycles"},  // 44
    {"My SmartCycle 15", "Steps the selection through the styles of your own SmartCycle 15.", "", "My Style SmartCycles", "MyCycles"},  // 45
    {"My Color SmartCycle 1", "Steps the selection through the font colors of your own color SmartCycle 1.", "Ctrl+Shift+F", "My Color SmartCycles", "ColorCycles"},  // 46
    {"My Color SmartCycle 2", "Steps the selection through the font colors of your own color SmartCycle 2.", "", "My Color SmartCycles", "ColorCycles"},  // 47
    {"My Color SmartCycle 3", "Steps the selection through the font colors of your own color SmartCycle 3.", "", "My Color SmartCycles", "ColorCycles"},  // 48
    {"My Color SmartCycle 4", "Steps the selection through the font colors of your own color SmartCycle 4.", "", "My Color SmartCycles", "ColorCycles"},  // 49
    {"My Color SmartCycle 5", "Steps the selection through the font colors of your own color SmartCycle 5.", "", "My Color SmartCycles", "ColorCycles"},  // 50
    {"Add Decimal Place", "Shows one more decimal place in the selected cells, whatever their number formats.", "Ctrl+Shift+.", "Decimal Adjustment", "Decimals"},  // 51
    {"Remove Decimal Place", "Shows one decimal place less in the selected cells, whatever their number formats.", "Ctrl+Shift+,", "Decimal Adjustment", "Decimals"},  // 52
    {"Increase Font Size", "Makes the font of the selected cells one step larger.", "", "Font and Text", "FontsAndText"},  // 53
    {"Decrease Font Size", "Makes the font of the selected cells one step smaller.", "", "Font and Text", "FontsAndText"},  // 54
    {"Error Trap", "Wraps the selected formulas in a test that shows the error text of the user settings; a second press unwraps them.", "Ctrl+Shift+W", "Formulas", "ErrorTrap"},  // 55
    {"Clear Formats", "Clears every format of the selected cells, and keeps what they hold.", "Ctrl+Shift+Delete", "Font and Text", "FontsAndText"},  // 56
    {"Separator Line", "Turns the selected cells into a thin row of dashes, or back into empty cells.", "", "Font and Text", "Separator"},  // 57
    {"Left Indent SmartCycle", "Steps the selection through the indent levels at the left.", "Ctrl+Shift+J", "Indents and Sizes", "SizeCycles"},  // 58
    {"Row Height SmartCycle", "Steps the selected rows through the row heights of the user settings.", "", "Indents and Sizes", "SizeCycles"},  // 59
    {"Column Width SmartCycle", "Steps the selected columns through the column widths of the user settings.", "", "Indents and Sizes", "SizeCycles"},  // 60
    {"AutoFit Row Heights", "Fits the height of the selected rows to what they hold.", "", "Indents and Sizes", "RowsAndColumns"},  // 61
    {"Standard Column Width", "Gives the selected columns the sheet's standard width.", "", "Indents and Sizes", "RowsAndColumns"},  // 62
    {"Insert Rows", "Inserts as many rows as are selected, above the selection.", "", "Rows and Columns", "RowsAndColumns"},  // 63
    {"Insert Columns", "Inserts as many columns as are selected, at the left of the selection.", "", "Rows and Columns", "RowsAndColumns"},  // 64
    {"Delete Rows", "Deletes the selected rows.", "", "Rows and Columns", "RowsAndColumns"},  // 65
    {"Delete Columns", "Deletes the selected columns.", "", "Rows and Columns", "RowsAndColumns"},  // 66
    {"Group Rows", "Adds an outline level to the selected rows.", "", "Grouping and Hiding", "Grouping"},  // 67
    {"Group Columns", "Adds an outline level to the selected columns.", "", "Grouping and Hiding", "Grouping"},  // 68
    {"Ungroup Rows", "Removes an outline level from the selected rows and shows them.", "", "Grouping and Hiding", "Grouping"},  // 69
    {"Ungroup Columns", "Removes an outline level from the selected columns and shows them.", "", "Grouping and Hiding", "Grouping"},  // 70
    {"Expand All Row Levels", "Opens every row level of the active sheet's outline.", "", "Grouping and Hiding", "Grouping"},  // 71
    {"Expand All Column Levels", "Opens every column level of the active sheet's outline.", "", "Grouping and Hiding", "Grouping"},  // 72
    {"Collapse Row Levels", "Closes the active sheet's row outline to its first level.", "", "Grouping and Hiding", "Grouping"},  // 73
    {"Collapse Column Levels", "Closes the active sheet's column outline to its first level.", "", "Grouping and Hiding", "Grouping"},  // 74
    {"Hide Rows", "Hides the selected rows.", "", "Grouping and Hiding", "Grouping"},  // 75
    {"Hide Columns", "Hides the selected columns.", "", "Grouping and Hiding", "Grouping"},  // 76
    {"Unhide Rows", "Shows the hidden rows of the selection.", "", "Grouping and Hiding", "Grouping"},  // 77
    {"Unhide Columns", "Shows the hidden columns of the selection.", "", "Grouping and Hiding", "Grouping"},  // 78
    {"Toggle Outline Levels", "Opens or closes the outline levels of the selected rows and columns.", "", "Grouping and Hiding", "Grouping"},  // 79
    {"Top Border", "Draws a border along the top of the selection, or clears it.", "Ctrl+Alt+Shift+Up", "Borders", "Borders"},  // 80
    {"Bottom Border", "Draws a border along the bottom of the selection, or clears it.", "Ctrl+Alt+Shift+Down", "Borders", "Borders"},  // 81
    {"Left Border", "Draws a border at the left of the selection, or clears it.", "Ctrl+Alt+Shift+Left", "Borders", "Borders"},  // 82
    {"Right Border", "Draws a border at the right of the selection, or clears it.", "Ctrl+Alt+Shift+Right", "Borders", "Borders"},  // 83
    {"Outline Border", "Draws a border around the selection.", "", "Borders", "Borders"},  // 84
    {"Grid Borders", "Draws borders between the cells of the selection.", "", "Borders", "Borders"},  // 85
    {"Remove Borders", "Clears every border of the selection.", "", "Borders", "Borders"},  // 86
    {"Zoom In", "Enlarges the active window by the zoom interval of the user settings, up to 400 per cent.", "", "View", "View"},  // 87
    {"Zoom Out", "Reduces the active window by the zoom interval of the user settings, down to 10 per cent.", "", "View", "View"},  // 88
    {"Toggle Window Size", "Switches Excel's window between maximized and a small window beside which others can stand.", "", "View", "View"},  // 89
    {"Maximize Window", "Maximizes Excel's window.", "", "View", "View"},  // 90
    {"First Worksheet", "Goes to the first visible worksheet.", "Alt+Home", "Worksheets", "Worksheets"},  // 91
    {"Last Worksheet", "Goes to the last visible worksheet.", "Alt+End", "Worksheets", "Worksheets"},  // 92
    {"AutoColor Workbook", "Colors the cells of every worksheet by what they hold: inputs, formulas and links.", "", "AutoColor", "AutoColor"},  // 93
    {"Scale Down by Thousands", "Shows the selected numbers in thousands, millions or billions: one step smaller, the values unchanged.", "", "Decimal Adjustment", "Decimals"},  // 94
    {"Scale Up by Thousands", "Shows the selected numbers one step of thousands larger, up to their full size.", "", "Decimal Adjustment", "Decimals"},  // 95
    {"Toggle Wrap Text", "Wraps the text of the selected cells, or unwraps it.", "", "Font and Text", "FontsAndText"},  // 96
    {"Right Indent SmartCycle", "Steps the selection through the indent levels at the right.", "", "Indents and Sizes", "SizeCycles"},  // 97
    {"Toggle Gridlines", "Shows or hides the gridlines of the active window.", "Ctrl+Shift+G", "View", "View"},  // 98
    {"Place Window", "Places Excel's window: maximized, in one half of the screen, or in its center.", "", "View", "View"},  // 99
    {"Remove Unused Number Formats", "Removes the custom number formats that no cell of the active workbook uses.", "", "Optimization", "Optimization"},  // 100
    {"Remove Invalid Range Names", "Removes the names of the active workbook whose references are no longer valid.", "", "Optimization", "Optimization"},  // 101
    {"AutoColor Worksheet", "Colors the cells of the active worksheet by what they hold: inputs, formulas and links.", "", "AutoColor", "AutoColor"},  // 102
}};
// clang-format on

namespace {

consteval bool keys_are_sound() {
    for (std::size_t i = 0; i < command_texts.size(); ++i) {
        if (command_texts[i].key.empty()) continue;
        const keys::KeyReading reading = keys::read_key(command_texts[i].key);
        if (!reading.ok() || !unsuitable(reading.key).empty() || may_type(reading.key)) return false;
        for (std::size_t j = 0; j < i; ++j) {
            if (!command_texts[j].key.empty() && keys::read_key(command_texts[j].key).key == reading.key) return false;
        }
    }
    return true;
}
static_assert(keys_are_sound(), "a default key is none, types a character, or is there twice");

}  // namespace

}  // namespace kestrune::brvblib
