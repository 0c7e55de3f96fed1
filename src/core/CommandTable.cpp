#include "core/CommandTable.h"

#include <cstddef>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/BookmarkCommands.h"
#include "core/SheetCommands.h"
#include "core/WindowCommands.h"
#include "excel/Constants.h"
#include "settings/AutoColorCommands.h"
#include "smart/AnchorCommand.h"
#include "smart/CleanUpCommands.h"
#include "smart/OutlineLevels.h"
#include "smart/RowColumnCommands.h"
#include "smart/copy/SmartCopy.h"
#include "smart/fill/SmartFill.h"
#include "smart/spacing/FormulaSpacing.h"
#include "smart/trace/SmartTrace.h"
#include "styles/commands/BorderCommands.h"
#include "styles/commands/CellContentCommands.h"
#include "styles/commands/FontAndTextCommands.h"
#include "styles/commands/NumberDisplayCommands.h"
#include "styles/commands/NumericCycleCommands.h"
#include "styles/commands/SheetStyleCommands.h"
#include "styles/commands/StyleCycleCommands.h"

namespace kestrune::core {
namespace {

using settings::NumericCycle;
using settings::StyleCycle;

template <StyleCycle field>
constexpr CommandBody cycle = &styles::style_cycle_command<field>;
template <StyleCycle field>
constexpr CommandNaming named = &styles::style_cycle_name<field>;
template <NumericCycle field>
constexpr CommandBody number_cycle = &styles::numeric_cycle_command<field>;
template <NumericCycle field>
constexpr CommandNaming number_named = &styles::numeric_cycle_name<field>;

template <smart::RowColumnCommand command>
constexpr CommandBody grid = &smart::row_column_command<command>;

constexpr bool plain = false;
constexpr bool parameter = true;

// What undo has on record before the body runs. Contents come with formats: Excel formats what is entered by what it
// looks like, and AutoColor colors it.
constexpr Aspects entries = Aspects::Contents | Aspects::Formats;
constexpr Touches nothing{};                                 // windows, settings and what is shown: no cell changes
constexpr Touches recorded{Reach::Recorded, Aspects::None};  // the body records what it writes
constexpr Touches lasting{Reach::Lasting, Aspects::None};
constexpr Touches formats{Reach::Selection, Aspects::Formats};
constexpr Touches restyled{Reach::Selection, Aspects::Formats | Aspects::Conditions};
constexpr Touches unmerged{Reach::Selection, entries | Aspects::Conditions | Aspects::Merges};
constexpr Touches contents{Reach::Selection, entries};
constexpr Touches filled{Reach::Selection, entries | Aspects::Filled};
constexpr Touches separators{Reach::Selection, entries | Aspects::Rows};
constexpr Touches row_sizes{Reach::Selection, Aspects::Rows};
constexpr Touches column_sizes{Reach::Selection, Aspects::Columns};
// A selection of whole rows is grouped as rows, whichever direction is asked for.
constexpr Touches outline_lines{Reach::Selection, Aspects::Rows | Aspects::Columns};
constexpr Touches all_rows{Reach::Sheet, Aspects::Rows};
constexpr Touches all_columns{Reach::Sheet, Aspects::Columns};
constexpr Touches outline{Reach::Sheet, Aspects::Rows | Aspects::Columns};
constexpr Touches sheet_formats{Reach::Sheet, Aspects::Formats};
constexpr Touches book_formats{Reach::Workbook, Aspects::Formats};
constexpr Touches names{Reach::Sheet, Aspects::Names};
constexpr Touches number_formats{Reach::Workbook, Aspects::NumberFormats};

// clang-format off
constexpr std::array<Command, 103> table{{
    {0, &smart::SmartCopyToRight, plain, recorded},  // Smart Copy Right
    {1, &smart::SmartCopyDown, plain, recorded},  // Smart Copy Down
    {2, &smart::anchor_references, plain, contents},  // Smart Anchor
    {3, &smart::SmartFormulaColumnSpacing, plain, filled},  // Smart Formula Column Spacing
    {4, &smart::SmartFormulaRowSpacing, plain, filled},  // Smart Formula Row Spacing
    {5, &smart::SmartFillDates, plain, recorded},  // Smart Fill Dates
    {6, &smart::SmartFillNumbers, plain, recorded},  // Smart Fill Numbers
    {7, &smart::SmartPrecedents, plain, nothing},  // Smart Precedents
    {8, &smart::SmartDependents, plain, nothing},  // Smart Dependents
    {9, set_bookmark, plain, names},  // Set Bookmark
    {10, next_bookmark, plain, nothing},  // Next Bookmark
    {11, previous_bookmark, plain, nothing},  // Previous Bookmark
    {12, remove_bookmarks, plain, names},  // Remove Bookmarks
    {13, next_worksheet, plain, nothing},  // Next Worksheet
    {14, previous_worksheet, plain, nothing},  // Previous Worksheet
    {15, &settings::auto_color_selection, plain, formats},  // AutoColor Selection
    {16, &styles::apply_sheet_style, plain, lasting},  // Apply Sheet Style
    {17, &styles::capture_paintbrush, plain, nothing},  // Capture BR Paintbrush
    {18, &styles::apply_paintbrush, plain, formats},  // Apply BR Paintbrush
    {19, cycle<StyleCycle::GeneralStyleToggle>, parameter, restyled, named<StyleCycle::GeneralStyleToggle>},  // General Number SmartCycle
    {20, cycle<StyleCycle::CurrencyStyleToggle>, parameter, restyled, named<StyleCycle::CurrencyStyleToggle>},  // Currency SmartCycle
    {21, cycle<StyleCycle::PercentStyleToggle>, parameter, restyled, named<StyleCycle::PercentStyleToggle>},  // Percent SmartCycle
    {22, cycle<StyleCycle::MultipleSTyleToggle>, parameter, restyled, named<StyleCycle::MultipleSTyleToggle>},  // Multiple SmartCycle
    {23, cycle<StyleCycle::DateStyleToggle>, parameter, restyled, named<StyleCycle::DateStyleToggle>},  // Date SmartCycle
    {24, cycle<StyleCycle::BinaryStyleToggle>, parameter, restyled, named<StyleCycle::BinaryStyleToggle>},  // Binary Number SmartCycle
    {25, cycle<StyleCycle::UnderlineStyleToggle>, parameter, restyled, named<StyleCycle::UnderlineStyleToggle>},  // Underline SmartCycle
    {26, cycle<StyleCycle::CenterStyleToggle>, parameter, unmerged, named<StyleCycle::CenterStyleToggle>},  // Center SmartCycle
    {27, cycle<StyleCycle::HAlignStyleToggle>, parameter, restyled, named<StyleCycle::HAlignStyleToggle>},  // Horizontal Alignment SmartCycle
    {28, cycle<StyleCycle::VAlignStyleToggle>, parameter, restyled, named<StyleCycle::VAlignStyleToggle>},  // Vertical Alignment SmartCycle
    {29, cycle<StyleCycle::BorderStyleToggle>, parameter, restyled, named<StyleCycle::BorderStyleToggle>},  // Border SmartCycle
    {30, cycle<StyleCycle::CellColorStyleToggle>, parameter, restyled, named<StyleCycle::CellColorStyleToggle>},  // Cell Back Color SmartCycle
    {31, cycle<StyleCycle::MyStyleToggle1>, parameter, restyled, named<StyleCycle::MyStyleToggle1>},  // My SmartCycle 1
    {32, cycle<StyleCycle::MyStyleToggle2>, parameter, restyled, named<StyleCycle::MyStyleToggle2>},  // My SmartCycle 2
    {33, cycle<StyleCycle::MyStyleToggle3>, parameter, restyled, named<StyleCycle::MyStyleToggle3>},  // My SmartCycle 3
    {34, cycle<StyleCycle::MyStyleToggle4>, parameter, restyled, named<StyleCycle::MyStyleToggle4>},  // My SmartCycle 4
    {35, cycle<StyleCycle::MyStyleToggle5>, parameter, restyled, named<StyleCycle::MyStyleToggle5>},  // My SmartCycle 5
    {36, cycle<StyleCycle::MyStyleToggle6>, parameter, restyled, named<StyleCycle::MyStyleToggle6>},  // My SmartCycle 6
    {37, cycle<StyleCycle::MyStyleToggle7>, parameter, restyled, named<StyleCycle::MyStyleToggle7>},  // My SmartCycle 7
    {38, cycle<StyleCycle::MyStyleToggle8>, parameter, restyled, named<StyleCycle::MyStyleToggle8>},  // My SmartCycle 8
    {39, cycle<StyleCycle::MyStyleToggle9>, parameter, restyled, named<StyleCycle::MyStyleToggle9>},  // My SmartCycle 9
    {40, cycle<StyleCycle::MyStyleToggle10>, parameter, restyled, named<StyleCycle::MyStyleToggle10>},  // My SmartCycle 10
    {41, cycle<StyleCycle::MyStyleToggle11>, parameter, restyled, named<StyleCycle::MyStyleToggle11>},  // My SmartCycle 11
    {42, cycle<StyleCycle::MyStyleToggle12>, parameter, restyled, named<StyleCycle::MyStyleToggle12>},  // My SmartCycle 12
    {43, cycle<StyleCycle::MyStyleToggle13>, parameter, restyled, named<StyleCycle::MyStyleToggle13>},  // My SmartCycle 13
    {44, cycle<StyleCycle::MyStyleToggle14>, parameter, restyled, named<StyleCycle::MyStyleToggle14>},  // My SmartCycle 14
    {45, cycle<StyleCycle::MyStyleToggle15>, parameter, restyled, named<StyleCycle::MyStyleToggle15>},  // My SmartCycle 15
    {46, number_cycle<NumericCycle::MyColorToggle1>, parameter, formats, number_named<NumericCycle::MyColorToggle1>},  // My Color SmartCycle 1
    {47, number_cycle<NumericCycle::MyColorToggle2>, parameter, formats, number_named<NumericCycle::MyColorToggle2>},  // My Color SmartCycle 2
    {48, number_cycle<NumericCycle::MyColorToggle3>, parameter, formats, number_named<NumericCycle::MyColorToggle3>},  // My Color SmartCycle 3
    {49, number_cycle<NumericCycle::MyColorToggle4>, parameter, formats, number_named<NumericCycle::MyColorToggle4>},  // My Color SmartCycle 4
    {50, number_cycle<NumericCycle::MyColorToggle5>, parameter, formats, number_named<NumericCycle::MyColorToggle5>},  // My Color SmartCycle 5
    {51, &styles::add_decimal_place, plain, formats},  // Add Decimal Place
    {52, &styles::remove_decimal_place, plain, formats},  // Remove Decimal Place
    {53, &styles::increase_font_size, plain, formats},  // Increase Font Size
    {54, &styles::decrease_font_size, plain, formats},  // Decrease Font Size
    {55, &styles::error_trap, plain, contents},  // Error Trap
    {56, &styles::clear_formats, plain, unmerged},  // Clear Formats
    {57, &styles::separator_line, plain, separators},  // Separator Line
    {58, number_cycle<NumericCycle::IndentToggle>, parameter, formats, number_named<NumericCycle::IndentToggle>},  // Left Indent SmartCycle
    {59, number_cycle<NumericCycle::RowHeightToggle>, parameter, row_sizes, number_named<NumericCycle::RowHeightToggle>},  // Row Height SmartCycle
    {60, number_cycle<NumericCycle::ColWidthToggle>, parameter, column_sizes, number_named<NumericCycle::ColWidthToggle>},  // Column Width SmartCycle
    {61, grid<smart::RowColumnCommand::AutoFitRows>, plain, row_sizes},  // AutoFit Row Heights
    {62, grid<smart::RowColumnCommand::ResetColumnWidths>, plain, column_sizes},  // Standard Column Width
    {63, grid<smart::RowColumnCommand::InsertRows>, plain, recorded},  // Insert Rows
    {64, grid<smart::RowColumnCommand::InsertColumns>, plain, recorded},  // Insert Columns
    {65, grid<smart::RowColumnCommand::DeleteRows>, plain, recorded},  // Delete Rows
    {66, grid<smart::RowColumnCommand::DeleteColumns>, plain, recorded},  // Delete Columns
    {67, grid<smart::RowColumnCommand::GroupRows>, plain, outline_lines},  // Group Rows
    {68, grid<smart::RowColumnCommand::GroupColumns>, plain, outline_lines},  // Group Columns
    {69, grid<smart::RowColumnCommand::UngroupRows>, plain, outline_lines},  // Ungroup Rows
    {70, grid<smart::RowColumnCommand::UngroupColumns>, plain, outline_lines},  // Ungroup Columns
    {71, grid<smart::RowColumnCommand::ExpandAllRowLevels>, plain, all_rows},  // Expand All Row Levels
    {72, grid<smart::RowColumnCommand::ExpandAllColumnLevels>, plain, all_columns},  // Expand All Column Levels
    {73, grid<smart::RowColumnCommand::CollapseRowLevels>, plain, all_rows},  // Collapse Row Levels
    {74, grid<smart::RowColumnCommand::CollapseColumnLevels>, plain, all_columns},  // Collapse Column Levels
    {75, grid<smart::RowColumnCommand::HideRows>, plain, row_sizes},  // Hide Rows
    {76, grid<smart::RowColumnCommand::HideColumns>, plain, column_sizes},  // Hide Columns
    {77, grid<smart::RowColumnCommand::UnhideRows>, plain, row_sizes},  // Unhide Rows
    {78, grid<smart::RowColumnCommand::UnhideColumns>, plain, column_sizes},  // Unhide Columns
    {79, smart::toggle_outline_levels, plain, outline},  // Toggle Outline Levels
    {80, &styles::toggle_edge_command<excel::xlEdgeTop>, plain, formats},  // Top Border
    {81, &styles::toggle_edge_command<excel::xlEdgeBottom>, plain, formats},  // Bottom Border
    {82, &styles::toggle_edge_command<excel::xlEdgeLeft>, plain, formats},  // Left Border
    {83, &styles::toggle_edge_command<excel::xlEdgeRight>, plain, formats},  // Right Border
    {84, &styles::draw_outline, plain, formats},  // Outline Border
    {85, &styles::draw_inside_grid, plain, formats},  // Grid Borders
    {86, &styles::remove_borders, plain, formats},  // Remove Borders
    {87, zoom_in, plain, nothing},  // Zoom In
    {88, zoom_out, plain, nothing},  // Zoom Out
    {89, toggle_window_size, plain, nothing},  // Toggle Window Size
    {90, maximise_window, plain, nothing},  // Maximize Window
    {91, first_worksheet, plain, nothing},  // First Worksheet
    {92, last_worksheet, plain, nothing},  // Last Worksheet
    {93, &settings::auto_color_workbook, plain, book_formats},  // AutoColor Workbook
    {94, &styles::scale_down, plain, formats},  // Scale Down by Thousands
    {95, &styles::scale_up, plain, formats},  // Scale Up by Thousands
    {96, &styles::toggle_wrap_text, plain, formats},  // Toggle Wrap Text
    {97, number_cycle<NumericCycle::RightIndentToggle>, parameter, formats, number_named<NumericCycle::RightIndentToggle>},  // Right Indent SmartCycle
    {98, toggle_gridlines, plain, nothing},  // Toggle Gridlines
    {99, place_window, parameter, nothing},  // Place Window
    {100, &smart::RemoveUnusedNumberFormats, plain, number_formats},  // Remove Unused Number Formats
    {101, &smart::RemoveInvalidRangeNames, plain, names},  // Remove Invalid Range Names
    {102, &settings::auto_color_worksheet, plain, sheet_formats},  // AutoColor Worksheet
}};
// clang-format on

consteval bool complete_from_zero_without_a_gap() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].number != static_cast<std::int32_t>(i)) return false;
    }
    return true;
}
static_assert(complete_from_zero_without_a_gap());

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
