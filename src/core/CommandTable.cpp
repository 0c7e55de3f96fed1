#include "core/CommandTable.h"

#include <cstddef>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/WindowCommands.h"
#include "settings/AutoColorCommands.h"
#include "styles/commands/StyleCycleCommands.h"

namespace kestrune::core {
namespace {

using settings::StyleCycle;

template <StyleCycle field>
constexpr CommandBody cycle = &styles::style_cycle_command<field>;

constexpr CommandBody later = nullptr;
constexpr bool plain = false;
constexpr bool parameter = true;
constexpr bool lasting = false;
constexpr bool undoable = true;

// clang-format off
constexpr std::array<Command, 103> table{{
    {0, later, plain, undoable},  // Smart Copy Right
    {1, later, plain, undoable},  // Smart Copy Down
    {2, later, plain, undoable},  // Smart Anchor
    {3, later, plain, undoable},  // Smart Formula Column Spacing
    {4, later, plain, undoable},  // Smart Formula Row Spacing
    {5, later, plain, undoable},  // Smart Fill Dates
    {6, later, plain, undoable},  // Smart Fill Numbers
    {7, later, plain, lasting},  // Smart Precedents
    {8, later, plain, lasting},  // Smart Dependents
    {9, later, plain, lasting},  // Set Bookmark
    {10, later, plain, lasting},  // Next Bookmark
    {11, later, plain, lasting},  // Previous Bookmark
    {12, later, plain, lasting},  // Remove Bookmarks
    {13, later, plain, lasting},  // Next Worksheet
    {14, later, plain, lasting},  // Previous Worksheet
    {15, &settings::auto_color_selection, plain, lasting},  // AutoColor Selection
    {16, later, plain, lasting},  // Apply Sheet Style
    {17, later, plain, lasting},  // Capture BR Paintbrush
    {18, later, plain, undoable},  // Apply BR Paintbrush
    {19, cycle<StyleCycle::GeneralStyleToggle>, parameter, undoable},  // General Number SmartCycle
    {20, cycle<StyleCycle::CurrencyStyleToggle>, parameter, undoable},  // Currency SmartCycle
    {21, cycle<StyleCycle::PercentStyleToggle>, parameter, undoable},  // Percent SmartCycle
    {22, cycle<StyleCycle::MultipleSTyleToggle>, parameter, undoable},  // Multiple SmartCycle
    {23, cycle<StyleCycle::DateStyleToggle>, parameter, undoable},  // Date SmartCycle
    {24, cycle<StyleCycle::BinaryStyleToggle>, parameter, undoable},  // Binary Number SmartCycle
    {25, cycle<StyleCycle::UnderlineStyleToggle>, parameter, undoable},  // Underline SmartCycle
    {26, cycle<StyleCycle::CenterStyleToggle>, parameter, undoable},  // Center SmartCycle
    {27, cycle<StyleCycle::HAlignStyleToggle>, parameter, undoable},  // Horizontal Alignment SmartCycle
    {28, cycle<StyleCycle::VAlignStyleToggle>, parameter, undoable},  // Vertical Alignment SmartCycle
    {29, cycle<StyleCycle::BorderStyleToggle>, parameter, undoable},  // Border SmartCycle
    {30, cycle<StyleCycle::CellColorStyleToggle>, parameter, undoable},  // Cell Back Color SmartCycle
    {31, cycle<StyleCycle::MyStyleToggle1>, parameter, undoable},  // My SmartCycle 1
    {32, cycle<StyleCycle::MyStyleToggle2>, parameter, undoable},  // My SmartCycle 2
    {33, cycle<StyleCycle::MyStyleToggle3>, parameter, undoable},  // My SmartCycle 3
    {34, cycle<StyleCycle::MyStyleToggle4>, parameter, undoable},  // My SmartCycle 4
    {35, cycle<StyleCycle::MyStyleToggle5>, parameter, undoable},  // My SmartCycle 5
    {36, cycle<StyleCycle::MyStyleToggle6>, parameter, undoable},  // My SmartCycle 6
    {37, cycle<StyleCycle::MyStyleToggle7>, parameter, undoable},  // My SmartCycle 7
    {38, cycle<StyleCycle::MyStyleToggle8>, parameter, undoable},  // My SmartCycle 8
    {39, cycle<StyleCycle::MyStyleToggle9>, parameter, undoable},  // My SmartCycle 9
    {40, cycle<StyleCycle::MyStyleToggle10>, parameter, undoable},  // My SmartCycle 10
    {41, cycle<StyleCycle::MyStyleToggle11>, parameter, undoable},  // My SmartCycle 11
    {42, cycle<StyleCycle::MyStyleToggle12>, parameter, undoable},  // My SmartCycle 12
    {43, cycle<StyleCycle::MyStyleToggle13>, parameter, undoable},  // My SmartCycle 13
    {44, cycle<StyleCycle::MyStyleToggle14>, parameter, undoable},  // My SmartCycle 14
    {45, cycle<StyleCycle::MyStyleToggle15>, parameter, undoable},  // My SmartCycle 15
    {46, later, parameter, undoable},  // My Color SmartCycle 1
    {47, later, parameter, undoable},  // My Color SmartCycle 2
    {48, later, parameter, undoable},  // My Color SmartCycle 3
    {49, later, parameter, undoable},  // My Color SmartCycle 4
    {50, later, parameter, undoable},  // My Color SmartCycle 5
    {51, later, plain, undoable},  // Add Decimal Place
    {52, later, plain, undoable},  // Remove Decimal Place
    {53, later, plain, undoable},  // Increase Font Size
    {54, later, plain, undoable},  // Decrease Font Size
    {55, later, plain, undoable},  // Error Trap
    {56, later, plain, undoable},  // Toggle Strikethrough
    {57, later, plain, undoable},  // Separator Line
    {58, later, parameter, undoable},  // Left Indent SmartCycle
    {59, later, parameter, undoable},  // Row Height SmartCycle
    {60, later, parameter, undoable},  // Column Width SmartCycle
    {61, later, plain, lasting},  // AutoFit Row Heights
    {62, later, plain, lasting},  // Standard Column Width
    {63, later, plain, lasting},  // Insert Rows
    {64, later, plain, lasting},  // Insert Columns
    {65, later, plain, lasting},  // Delete Rows
    {66, later, plain, lasting},  // Delete Columns
    {67, later, plain, lasting},  // Group Rows
    {68, later, plain, lasting},  // Group Columns
    {69, later, plain, lasting},  // Ungroup Rows
    {70, later, plain, lasting},  // Ungroup Columns
    {71, later, plain, lasting},  // Expand All Row Levels
    {72, later, plain, lasting},  // Expand All Column Levels
    {73, later, plain, lasting},  // Collapse Row Levels
    {74, later, plain, lasting},  // Collapse Column Levels
    {75, later, plain, lasting},  // Hide Rows
    {76, later, plain, lasting},  // Hide Columns
    {77, later, plain, lasting},  // Unhide Rows
    {78, later, plain, lasting},  // Unhide Columns
    {79, later, plain, lasting},  // Toggle Outline Levels
    {80, later, plain, undoable},  // Top Border
    {81, later, plain, undoable},  // Bottom Border
    {82, later, plain, undoable},  // Left Border
    {83, later, plain, undoable},  // Right Border
    {84, later, plain, undoable},  // Outline Border
    {85, later, plain, undoable},  // Grid Borders
    {86, later, plain, undoable},  // Remove Borders
    {87, zoom_in, plain, lasting},  // Zoom In
    {88, zoom_out, plain, lasting},  // Zoom Out
    {89, toggle_window_size, plain, lasting},  // Toggle Window Size
    {90, maximise_window, plain, lasting},  // Maximize Window
    {91, later, plain, lasting},  // First Worksheet
    {92, later, plain, lasting},  // Last Worksheet
    {93, &settings::auto_color_workbook, plain, lasting},  // AutoColor Workbook
    {94, later, plain, undoable},  // Clear Formats
    {95, later, plain, undoable},  // Toggle Shrink to Fit
    {96, later, plain, undoable},  // Toggle Wrap Text
    {97, later, parameter, undoable},  // Right Indent SmartCycle
    {98, toggle_gridlines, plain, lasting},  // Toggle Gridlines
    {99, place_window, parameter, lasting},  // Place Window
    {100, later, plain, lasting},  // Remove Unused Number Formats
    {101, later, plain, lasting},  // Remove Invalid Range Names
    {102, &settings::auto_color_worksheet, plain, lasting},  // AutoColor Worksheet
}};
// clang-format on

consteval bool numbered_from_zero_without_a_gap() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].number != static_cast<std::int32_t>(i)) return false;
    }
    return true;
}
static_assert(numbered_from_zero_without_a_gap());

// The command of a number, by value.
const Command* command_of(double number) {
    for (const Command& command : table) {
        if (number == command.number) return &command;
    }
    return nullptr;
}

}  // namespace

const std::array<Command, 103>& commands() { return table; }

ResolvedRequest resolve(const automation::Value& request, const automation::Trace& trace) {
    const automation::ResumeNext attempt(trace);
    automation::Value asked = request;
    ResolvedRequest resolved;
    std::string text;
    attempt.assign(text, [&] { return automation::to_text(request); });
    if (const std::size_t stop = text.find('.'); stop != std::string::npos) {
        attempt.assign(resolved.parameter, [&] { return automation::to_integer(text.substr(stop + 1)); });
        attempt.assign(asked, [&] { return automation::to_double(text.substr(0, stop)); });
    }
    attempt([&] { resolved.command = command_of(automation::to_double(asked)); });
    return resolved;
}

}  // namespace kestrune::core
