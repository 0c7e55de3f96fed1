#include "cli/show/ShowCommand.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "cli/Failure.h"
#include "cli/OpenWorkbook.h"
#include "cli/run/Select.h"
#include "cli/show/HtmlPage.h"
#include "cli/show/TerminalGrid.h"
#include "excel/Worksheet.h"
#include "formula/Selection.h"
#include "host/xlsx/package/AtomicFile.h"

namespace kestrune::cli {
namespace {

using formula::Area;

// A terminal is no place for more; a range asks for what it wants.
constexpr std::int32_t most_rows = 200;
constexpr std::int32_t most_columns = 40;

struct Shown {
    host::Sheet* sheet = nullptr;
    Area area;
    bool cut = false;
};

// The sheet and area that a range argument means; the used part of the active sheet without one.
Shown find_area(OpenWorkbook& book, const std::optional<std::string>& range) {
    Shown shown;
    if (range) {
        // A sheet's name alone means all of it.
        if (host::Sheet* whole = book.model().sheet(*range); whole && whole->kind() == host::SheetKind::Worksheet) {
            shown.sheet = whole;
        } else {
            const excel::Range cells = find_cells(book, *range);
            shown.sheet = book.model().sheet(cells.Worksheet().Name());
            const auto parsed = formula::parse_selection(cells.Address());
            const auto* selection = std::get_if<formula::Selection>(&parsed);
            if (!selection || selection->areas.size() != 1)
                throw Failure(fmt::format("{}: show takes one area, not several", *range));
            shown.area = selection->areas.front();
            const Area used = shown.sheet->used_area();
            if (shown.area.whole_columns()) shown.area.last_row = used.last_row;
            if (shown.area.whole_rows()) shown.area.last_column = used.last_column;
            return shown;
        }
    } else {
        const auto index = static_cast<std::size_t>(book.model().active_sheet);
        const auto& sheets = book.model().sheets();
        if (index >= sheets.size() || sheets[index]->kind() != host::SheetKind::Worksheet) {
            throw Failure(
                fmt::format("{}: the active sheet is not a worksheet; name a range to show", book.model().name));
        }
        shown.sheet = sheets[index].get();
    }
    shown.area = shown.sheet->used_area();
    shown.area.first_row = shown.area.first_column = 1;
    const Area whole = shown.area;
    shown.area.last_row = std::min(shown.area.last_row, most_rows);
    shown.area.last_column = std::min(shown.area.last_column, most_columns);
    shown.cut = shown.area != whole;
    return shown;
}

bool wants_color(const std::string& choice) {
    if (choice == "always") return true;
    if (choice == "never") return false;
    if (choice != "auto") throw UsageError(fmt::format("--color {}: is not auto, always or never", choice));
    return isatty(STDOUT_FILENO) != 0;
}

}  // namespace

void show(const ShowOptions& options) {
    const bool color = wants_color(options.color);
    OpenWorkbook book(options.workbook);
    if (options.html) {
        std::string page;
        if (options.range) {
            const Shown shown = find_area(book, options.range);
            page = html_page(book.model(), *shown.sheet, shown.area);
        } else {
            page = html_page(book.model());
        }
        host::AtomicFile file(*options.html);
        file.write(page);
        file.commit();
        return;
    }
    const Shown shown = find_area(book, options.range);
    fmt::print("{}", terminal_grid(*shown.sheet, shown.area, color));
    if (shown.cut) fmt::print(stderr, "the sheet goes on; name a range to see more\n");
}

}  // namespace kestrune::cli
