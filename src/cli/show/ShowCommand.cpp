#include "cli/show/ShowCommand.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <optional>

#include "cli/Failure.h"
#include "cli/OpenWorkbook.h"
#include "cli/prefs/AutoColorRules.h"
#include "cli/run/Select.h"
#include "cli/show/Classes.h"
#include "cli/show/HtmlPage.h"
#include "cli/show/TerminalGrid.h"
#include "excel/Worksheet.h"
#include "formula/Column.h"
#include "formula/Selection.h"
#include "formula/SheetName.h"
#include "host/xlsx/package/AtomicFile.h"

namespace kestrune::cli {
namespace {

using brxllib::AutoColorSettings;
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

excel::Worksheet worksheet_of(const OpenWorkbook& book, const host::Sheet& sheet) {
    return book.application().ActiveWorkbook().Worksheets().Item(std::string_view(sheet.name()));
}

// One object a cell that holds anything, row by row.
void print_classes(const OpenWorkbook& book, const host::Sheet& sheet, const Area& area,
                   const AutoColorSettings& rules) {
    const Classes classes(worksheet_of(book, sheet), area, rules);
    const std::string prefix = formula::quoted_sheet(sheet.name()) + "!";
    const char* separator = "[\n";
    for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
        for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
            const brxllib::CellClass cell = classes.at({row, column});
            if (cell == brxllib::CellClass::Empty) continue;
            nlohmann::ordered_json entry{
                {"Address", fmt::format("{}${}${}", prefix, formula::column_letters(column), row)},
                {"Class", look_of(cell).name},
                {"Color", nullptr}};
            if (const auto color = classes.color(cell)) entry["Color"] = *color;
            fmt::print("{}{}", separator, entry.dump());
            separator = ",\n";
        }
    }
    fmt::print("{}]\n", separator[0] == '[' ? "[" : "\n");
}

void write_page(OpenWorkbook& book, const ShowOptions& options, const AutoColorSettings& rules) {
    Classify classify;
    if (options.classes) {
        classify = [&](host::Sheet& sheet, const Area& area) {
            return Classes(worksheet_of(book, sheet), area, rules);
        };
    }
    std::string page;
    if (options.range) {
        const Shown shown = find_area(book, options.range);
        page = html_page(book.model(), *shown.sheet, shown.area, classify);
    } else {
        page = html_page(book.model(), classify);
    }
    host::AtomicFile file(*options.html);
    file.write(page);
    file.commit();
}

}  // namespace

void show(const ShowOptions& options) {
    const bool color = wants_color(options.color);
    if (options.json && !options.classes) throw UsageError("--json: show has nothing but --classes for programs");
    if (!options.classes && !(options.prefs.empty() && options.settings.empty())) {
        throw UsageError("--prefs, --set: show needs settings for nothing but --classes");
    }
    AutoColorSettings rules;
    if (options.classes) rules = auto_color_rules(options.prefs, options.settings);
    OpenWorkbook book(options.workbook);
    if (options.html) return write_page(book, options, rules);
    const Shown shown = find_area(book, options.range);
    if (options.json) {
        return print_classes(book, *shown.sheet, options.range ? shown.area : shown.sheet->used_area(), rules);
    }
    std::optional<Classes> classes;
    if (options.classes) classes.emplace(worksheet_of(book, *shown.sheet), shown.area, rules);
    fmt::print("{}", terminal_grid(*shown.sheet, shown.area, color, classes ? &*classes : nullptr));
    if (shown.cut) fmt::print(stderr, "the sheet goes on; name a range to see more\n");
}

}  // namespace kestrune::cli
