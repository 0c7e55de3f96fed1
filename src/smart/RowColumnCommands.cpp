#include "smart/RowColumnCommands.h"

#include <array>
#include <cstddef>

#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "excel/Constants.h"
#include "excel/Outline.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using excel::Outline;
using excel::Range;

constexpr std::int32_t all_levels = 8;
constexpr std::int32_t first_level = 1;

void reset_column_widths(const Range& selection) {
    const Range columns = selection.Columns();
    const double standard = selection.Worksheet().StandardWidth();
    if (!(columns.ColumnWidth() == excel::Value(standard))) columns.ColumnWidth(standard);
}

// What a command does, one statement after the other, to the selection or to the active sheet's outline.
struct Row {
    RowColumnCommand command;
    void (*first)(const Range& selection) = nullptr;
    void (*then)(const Range& selection) = nullptr;
    void (*outline)(const Outline& outline) = nullptr;
    // Tells undo what is about to happen; false when the person does not want it then.
    bool (*record)(const core::diBRXLLib& library, const Range& selection) = nullptr;
};

// Where all rows (or columns) are selected, as many more would push everything off the sheet: none come.
bool rows_come(const core::diBRXLLib& library, const Range& selection) {
    if (selection.EntireRow().Rows().Count() == selection.Worksheet().Cells().Rows().Count()) return false;
    return library.record_insertion(selection.EntireRow().object(), true);
}
bool columns_come(const core::diBRXLLib& library, const Range& selection) {
    if (selection.EntireColumn().Columns().Count() == selection.Worksheet().Cells().Columns().Count()) return false;
    return library.record_insertion(selection.EntireColumn().object(), false);
}
bool rows_go(const core::diBRXLLib& library, const Range& selection) {
    return library.record_deletion(selection.EntireRow().object(), true);
}
bool columns_go(const core::diBRXLLib& library, const Range& selection) {
    return library.record_deletion(selection.EntireColumn().object(), false);
}

using enum RowColumnCommand;

// clang-format off
constexpr auto table = std::to_array<Row>({
    {AutoFitRows, [](const Range& selection) { selection.Rows().AutoFit(); }},
    {ResetColumnWidths, reset_column_widths},
    {InsertRows, [](const Range& selection) { selection.EntireRow().Insert(); }, nullptr, nullptr, rows_come},
    {InsertColumns, [](const Range& selection) { selection.EntireColumn().Insert(); }, nullptr, nullptr, columns_come},
    {DeleteRows, [](const Range& selection) { selection.EntireRow().Delete(excel::xlUp); }, nullptr, nullptr, rows_go},
    {DeleteColumns, [](const Range& selection) { selection.EntireColumn().Delete(excel::xlToLeft); }, nullptr, nullptr, columns_go},
    {GroupRows, [](const Range& selection) { selection.Rows().Group(); }},
    {GroupColumns, [](const Range& selection) { selection.Columns().Group(); }},
    // Rows of a closed group would stay hidden without it.
    {UngroupRows, [](const Range& selection) { selection.Rows().Ungroup(); },
                  [](const Range& selection) { selection.EntireRow().Hidden(false); }},
    {UngroupColumns, [](const Range& selection) { selection.Columns().Ungroup(); },
                     [](const Range& selection) { selection.EntireColumn().Hidden(false); }},
    {ExpandAllRowLevels, nullptr, nullptr, [](const Outline& outline) { outline.ShowRowLevels(all_levels); }},
    {ExpandAllColumnLevels, nullptr, nullptr, [](const Outline& outline) { outline.ShowColumnLevels(all_levels); }},
    {CollapseRowLevels, nullptr, nullptr, [](const Outline& outline) { outline.ShowRowLevels(first_level); }},
    {CollapseColumnLevels, nullptr, nullptr, [](const Outline& outline) { outline.ShowColumnLevels(first_level); }},
    {HideRows, [](const Range& selection) { selection.EntireRow().Hidden(true); }},
    {HideColumns, [](const Range& selection) { selection.EntireColumn().Hidden(true); }},
    {UnhideRows, [](const Range& selection) { selection.EntireRow().Hidden(false); }},
    {UnhideColumns, [](const Range& selection) { selection.EntireColumn().Hidden(false); }},
});
// clang-format on

constexpr bool in_order() {
    for (std::size_t i = 0; i < table.size(); ++i)
        if (table[i].command != static_cast<RowColumnCommand>(i)) return false;
    return table.size() == static_cast<std::size_t>(UnhideColumns) + 1;
}
static_assert(in_order());

}  // namespace

void run_row_column_command(core::SharedState& shared, RowColumnCommand command) {
    const ResumeNext attempt(shared.trace);
    const excel::Application application(shared.application);
    const Row& row = table[static_cast<std::size_t>(command)];
    automation::ObjectRef object;
    if (row.outline) {
        attempt.assign(object, [&] { return application.ActiveSheet(); });
        if (!excel::Worksheet::is(object)) return;
        attempt([&] { row.outline(excel::Worksheet(object).Outline()); });
        return;
    }
    attempt.assign(object, [&] { return application.Selection(); });
    if (!Range::is(object)) return;
    const Range selection(object);
    bool wanted = true;
    // A library that keeps no record is no reason to do nothing.
    if (row.record) attempt.assign(wanted, [&] { return row.record(shared.spreadsheet(), selection); });
    if (!wanted) return;
    attempt([&] { row.first(selection); });
    if (row.then) attempt([&] { row.then(selection); });
}

}  // namespace kestrune::smart
