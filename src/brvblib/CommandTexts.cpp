#include "brvblib/CommandTexts.h"

namespace kestrune::brvblib {

// One row a command, its number behind it.
// clang-format off
const std::array<CommandText, 103> command_texts{{
    {"Smart Copy Right", "Copies the selected column to the right, onto the columns that the interval, always and fill rules choose.", "Smart Tools"},  // 0
    {"Smart Copy Down", "Copies the selected row down, onto the rows that the interval, always and fill rules choose.", "Smart Tools"},  // 1
    {"Smart Anchor", "Steps the references of the selected formulas through relative, absolute and the two mixed forms.", "Smart Tools"},  // 2
    {"Smart Formula Column Spacing", "Fills the selection across with its first formulas, the references moving at a pace of their own.", "Smart Tools"},  // 3
    {"Smart Formula Row Spacing", "Fills the selection down with its first formulas, the references moving at a pace of their own.", "Smart Tools"},  // 4
    {"Smart Fill Dates", "Fills a row or column with dates, a number of days, months or years apart.", "Smart Tools"},  // 5
    {"Smart Fill Numbers", "Fills a row or column with numbers from a start to an end value.", "Smart Tools"},  // 6
    {"Smart Precedents", "Lists the cells that the active cell's formula refers to, and goes to the one chosen.", "Smart Tools"},  // 7
    {"Smart Dependents", "Lists the cells whose formulas refer to the active cell, and goes to the one chosen.", "Smart Tools"},  // 8
    {"Set Bookmark", "Sets a bookmark at the selection.", "Bookmarks"},  // 9
    {"Next Bookmark", "Goes to the workbook's next bookmark.", "Bookmarks"},  // 10
    {"Previous Bookmark", "Goes to the workbook's previous bookmark.", "Bookmarks"},  // 11
    {"Remove Bookmarks", "Removes every bookmark of the workbook.", "Bookmarks"},  // 12
    {"Next Worksheet", "Goes to the next visible worksheet.", "Worksheets"},  // 13
    {"Previous Worksheet", "Goes to the previous visible worksheet.", "Worksheets"},  // 14
    {"AutoColor Selection", "Colors the selected cells by what they hold: inputs, formulas and links.", "AutoColor"},  // 15
    {"Apply Sheet Style", "Applies the sheet style of the user settings to the whole active sheet, after asking.", "Styles"},  // 16
    {"Capture BR Paintbrush", "Captures the active cell's formatting as a new style for the Paintbrush.", "Styles"},  // 17
    {"Apply BR Paintbrush", "Paints the captured style onto the selection.", "Styles"},  // 18
    {"General Number SmartCycle", "Steps the selection through number formats.", "Style SmartCycles"},  // 19
    {"Currency SmartCycle", "Steps the selection through currency formats.", "Style SmartCycles"},  // 20
    {"Percent SmartCycle", "Steps the selection through percent formats.", "Style SmartCycles"},  // 21
    {"Multiple SmartCycle", "Steps the selection through multiple formats, such as 2.5x.", "Style SmartCycles"},  // 22
    {"Date SmartCycle", "Steps the selection through date and time formats.", "Style SmartCycles"},  // 23
    {"Binary Number SmartCycle", "Steps the selection through formats for yes/no flags, and shows any value but 0 and 1 in red.", "Style SmartCycles"},  // 24
    {"Underline SmartCycle", "Steps the selection through underlines.", "Style SmartCycles"},  // 25
    {"Center SmartCycle", "Steps the selection through centered, centered across and general alignment, unmerging merged cells.", "Style SmartCycles"},  // 26
    {"Horizontal Alignment SmartCycle", "Steps the selection through horizontal alignments.", "Style SmartCycles"},  // 27
    {"Vertical Alignment SmartCycle", "Steps the selection through vertical alignments.", "Style SmartCycles"},  // 28
    {"Border SmartCycle", "Steps the selection through borders.", "Style SmartCycles"},  // 29
    {"Cell Back Color SmartCycle", "Steps the selection through background colors.", "Style SmartCycles"},  // 30
    {"My SmartCycle 1", "Steps the selection through the styles of your own SmartCycle 1.", "My Style SmartCycles"},  // 31
    {"My SmartCycle 2", "Steps the selection through the styles of your own SmartCycle 2.", "My Style SmartCycles"},  // 32
    {"My SmartCycle 3", "Steps the selection through the styles of your own SmartCycle 3.", "My Style SmartCycles"},  // 33
    {"My SmartCycle 4", "Steps the selection through the styles of your own SmartCycle 4.", "My Style SmartCycles"},  // 34
    {"My SmartCycle 5", "Steps the selection through the styles of your own SmartCycle 5.", "My Style SmartCycles"},  // 35
    {"My SmartCycle 6", "Steps the selection through the styles of your own SmartCycle 6.", "My Style SmartCycles"},  // 36
    {"My SmartCycle 7", "Steps the selection through the styles of your own SmartCycle 7.", "My Style SmartCycles"},  // 37
    {"My SmartCycle 8", "Steps the selection through the styles of your own SmartCycle 8.", "My Style SmartCycles"},  // 38
    {"My SmartCycle 9", "Steps the selection through the styles of your own SmartCycle 9.", "My Style SmartCycles"},  // 39
    {"My SmartCycle 10", "Steps the selection through the styles of your own SmartCycle 10.", "My Style SmartCycles"},  // 40
    {"My SmartCycle 11", "Steps the selection through the styles of your own SmartCycle 11.", "My Style SmartCycles"},  // 41
    {"My SmartCycle 12", "Steps the selection through the styles of your own SmartCycle 12.", "My Style SmartCycles"},  // 42
    {"My SmartCycle 13", "Steps the selection through the styles of your own SmartCycle 13.", "My Style SmartCycles"},  // 43
    {"My SmartCycle 14", "Steps the selection through the styles of your own SmartCycle 14.", "My Style SmartCycles"},  // 44
    {"My SmartCycle 15", "Steps the selection through the styles of your own SmartCycle 15.", "My Style SmartCycles"},  // 45
    {"My Color SmartCycle 1", "Steps the selection through the font colors of your own color SmartCycle 1.", "My Color SmartCycles"},  // 46
    {"My Color SmartCycle 2", "Steps the selection through the font colors of your own color SmartCycle 2.", "My Color SmartCycles"},  // 47
    {"My Color SmartCycle 3", "Steps the selection through the font colors of your own color SmartCycle 3.", "My Color SmartCycles"},  // 48
    {"My Color SmartCycle 4", "Steps the selection through the font colors of your own color SmartCycle 4.", "My Color SmartCycles"},  // 49
    {"My Color SmartCycle 5", "Steps the selection through the font colors of your own color SmartCycle 5.", "My Color SmartCycles"},  // 50
    {"Add Decimal Place", "Shows one more decimal place in the selected cells, whatever their number formats.", "Decimal Adjustment"},  // 51
    {"Remove Decimal Place", "Shows one decimal place less in the selected cells, whatever their number formats.", "Decimal Adjustment"},  // 52
    {"Increase Font Size", "Makes the font of the selected cells one step larger.", "Font and Text"},  // 53
    {"Decrease Font Size", "Makes the font of the selected cells one step smaller.", "Font and Text"},  // 54
    {"Error Trap", "Wraps the selected formulas in a test that shows the error text of the user settings; a second press unwraps them.", "Formulas"},  // 55
    {"Toggle Strikethrough", "Strikes the text of the selected cells through, or clears the line.", "Font and Text"},  // 56
    {"Separator Line", "Turns the selected cells into a thin row of dashes, or back into empty cells.", "Font and Text"},  // 57
    {"Left Indent SmartCycle", "Steps the selection through the indent levels at the left.", "Indents and Sizes"},  // 58
    {"Row Height SmartCycle", "Steps the selected rows through the row heights of the user settings.", "Indents and Sizes"},  // 59
    {"Column Width SmartCycle", "Steps the selected columns through the column widths of the user settings.", "Indents and Sizes"},  // 60
    {"AutoFit Row Heights", "Fits the height of the selected rows to what they hold.", "Indents and Sizes"},  // 61
    {"Standard Column Width", "Gives the selected columns the sheet's standard width.", "Indents and Sizes"},  // 62
    {"Insert Rows", "Inserts as many rows as are selected, above the selection.", "Rows and Columns"},  // 63
    {"Insert Columns", "Inserts as many columns as are selected, at the left of the selection.", "Rows and Columns"},  // 64
    {"Delete Rows", "Deletes the selected rows.", "Rows and Columns"},  // 65
    {"Delete Columns", "Deletes the selected columns.", "Rows and Columns"},  // 66
    {"Group Rows", "Adds an outline level to the selected rows.", "Grouping and Hiding"},  // 67
    {"Group Columns", "Adds an outline level to the selected columns.", "Grouping and Hiding"},  // 68
    {"Ungroup Rows", "Removes an outline level from the selected rows and shows them.", "Grouping and Hiding"},  // 69
    {"Ungroup Columns", "Removes an outline level from the selected columns and shows them.", "Grouping and Hiding"},  // 70
    {"Expand All Row Levels", "Opens every row level of the active sheet's outline.", "Grouping and Hiding"},  // 71
    {"Expand All Column Levels", "Opens every column level of the active sheet's outline.", "Grouping and Hiding"},  // 72
    {"Collapse Row Levels", "Closes the active sheet's row outline to its first level.", "Grouping and Hiding"},  // 73
    {"Collapse Column Levels", "Closes the active sheet's column outline to its first level.", "Grouping and Hiding"},  // 74
    {"Hide Rows", "Hides the selected rows.", "Grouping and Hiding"},  // 75
    {"Hide Columns", "Hides the selected columns.", "Grouping and Hiding"},  // 76
    {"Unhide Rows", "Shows the hidden rows of the selection.", "Grouping and Hiding"},  // 77
    {"Unhide Columns", "Shows the hidden columns of the selection.", "Grouping and Hiding"},  // 78
    {"Toggle Outline Levels", "Opens or closes the outline levels of the selected rows and columns.", "Grouping and Hiding"},  // 79
    {"Top Border", "Draws a border along the top of the selection, or clears it.", "Borders"},  // 80
    {"Bottom Border", "Draws a border along the bottom of the selection, or clears it.", "Borders"},  // 81
    {"Left Border", "Draws a border at the left of the selection, or clears it.", "Borders"},  // 82
    {"Right Border", "Draws a border at the right of the selection, or clears it.", "Borders"},  // 83
    {"Outline Border", "Draws a border around the selection.", "Borders"},  // 84
    {"Grid Borders", "Draws borders around every cell of the selection.", "Borders"},  // 85
    {"Remove Borders", "Clears every border of the selection.", "Borders"},  // 86
    {"Zoom In", "Enlarges the active window by the zoom interval of the user settings, up to 400 per cent.", "View"},  // 87
    {"Zoom Out", "Reduces the active window by the zoom interval of the user settings, down to 10 per cent.", "View"},  // 88
    {"Toggle Window Size", "Switches Excel's window between maximized and a small window beside which others can stand.", "View"},  // 89
    {"Maximize Window", "Maximizes Excel's window.", "View"},  // 90
    {"First Worksheet", "Goes to the first visible worksheet.", "Worksheets"},  // 91
    {"Last Worksheet", "Goes to the last visible worksheet.", "Worksheets"},  // 92
    {"AutoColor Workbook", "Colors the cells of every worksheet by what they hold: inputs, formulas and links.", "AutoColor"},  // 93
    {"Clear Formats", "Clears the formats of the selected cells and keeps what they hold.", "Font and Text"},  // 94
    {"Toggle Shrink to Fit", "Shrinks the text of the selected cells to their width, or shows it at full size.", "Font and Text"},  // 95
    {"Toggle Wrap Text", "Wraps the text of the selected cells, or unwraps it.", "Font and Text"},  // 96
    {"Right Indent SmartCycle", "Steps the selection through the indent levels at the right.", "Indents and Sizes"},  // 97
    {"Toggle Gridlines", "Shows or hides the gridlines of the active window.", "View"},  // 98
    {"Place Window", "Places Excel's window: maximized, in one half of the screen, or in its center.", "View"},  // 99
    {"Remove Unused Number Formats", "Removes the custom number formats that no cell of the active workbook uses.", "Optimization"},  // 100
    {"Remove Invalid Range Names", "Removes the names of the active workbook whose references are no longer valid.", "Optimization"},  // 101
    {"Toggle AutoColor", "Switches coloring of cells as they are entered on or off.", "AutoColor"},  // 102
}};
// clang-format on

}  // namespace kestrune::brvblib
