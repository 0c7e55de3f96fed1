#include "smart/trace/Trail.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "automation/Text.h"
#include "excel/Constants.h"

namespace kestrune::smart {

using automation::ResumeNext;

Trail::Trail(const core::SharedState& shared) : application_(shared.application), attempt_(shared.trace) {
    attempt_([&] {
        const excel::Workbook workbook = application_.ActiveWorkbook();
        note_book(workbook);
        note_sheet(workbook, excel::Worksheet(application_.ActiveSheet()));
    });
}

void Trail::note_book(const excel::Workbook& workbook) {
    const std::string name = workbook.Name();
    if (std::ranges::find(books_, name, &BookPlace::name) != books_.end()) return;
    books_.push_back({workbook, name, workbook.ActiveSheet()});
}

// Of the active sheet alone can be told what is selected on it.
void Trail::note_sheet(const excel::Workbook& workbook, const excel::Worksheet& sheet) {
    SheetPlace place{workbook, sheet, workbook.Name() + "\n" + sheet.Name(), {}, {}};
    if (std::ranges::find(sheets_, place.key, &SheetPlace::key) != sheets_.end()) return;
    const excel::Window window = application_.ActiveWindow();
    attempt_([&] {
        const automation::ObjectRef selected = application_.Selection();
        if (excel::Range::is(selected)) place.selection = excel::Range(selected);
    });
    attempt_.assign(place.active_cell, [&] { return application_.ActiveCell(); });
    attempt_.assign(place.scroll_row, [&] { return window.ScrollRow(); });
    attempt_.assign(place.scroll_column, [&] { return window.ScrollColumn(); });
    sheets_.push_back(std::move(place));
}

bool Trail::show(const core::CellLink& link) {
    // What cannot be shown is told where it was asked for.
    const automation::Trace nobody;
    const ResumeNext attempt(nobody);
    bool shown = false;
    attempt([&] {
        const excel::Workbook workbook = application_.Workbooks().Item(link.workbook);
        const excel::Worksheet sheet = workbook.Worksheets().Item(link.sheet);
        if (sheet.Visible() != excel::xlSheetVisible) return;
        // A spilled range is found by its first cell where Excel knows no spilling.
        std::string address = link.address;
        excel::Range cells;
        if (!attempt.assign(cells, [&] { return sheet.Range(address); }) && address.ends_with('#')) address.pop_back();
        if (!cells) cells = sheet.Range(address);
        note_book(workbook);
        left_ = true;
        workbook.Activate();
        sheet.Activate();
        note_sheet(workbook, sheet);
        cells.Select();
        shown = true;
    });
    return shown;
}

void Trail::back() {
    if (!std::exchange(left_, false)) return;
    attempt_([&] { application_.ScreenUpdating(false); });
    for (const SheetPlace& place : sheets_ | std::views::reverse) {
        attempt_([&] { place.workbook.Activate(); });
        attempt_([&] { place.sheet.Activate(); });
        if (place.selection) attempt_([&] { place.selection.Select(); });
        if (place.active_cell) attempt_([&] { place.active_cell.Activate(); });
        const excel::Window window = application_.ActiveWindow();
        attempt_([&] { window.ScrollRow(place.scroll_row); });
        attempt_([&] { window.ScrollColumn(place.scroll_column); });
    }
    for (const BookPlace& place : books_ | std::views::reverse) {
        attempt_([&] { place.workbook.Activate(); });
        // A chart is activated as a worksheet is.
        attempt_([&] { excel::Worksheet(place.active_sheet).Activate(); });
    }
    attempt_([&] { application_.ScreenUpdating(true); });
}

}  // namespace kestrune::smart
