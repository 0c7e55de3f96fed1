#include "brxllib/autocolor/AutoColor.h"

#include <algorithm>
#include <optional>

#include "automation/Conversion.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/FontPainter.h"
#include "brxllib/autocolor/Locks.h"
#include "brxllib/autocolor/Rectangles.h"
#include "excel/Constants.h"
#include "formula/A1.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;
using formula::Area;

// Cells that are read at once: enough for calls not to count, few enough for Excel's memory.
constexpr std::int64_t most_cells_at_once = 200'000;

// From here on it pays to ask Excel where on the sheet there is anything: a used range may be nearly the whole sheet
// because of one cell far out.
constexpr std::int64_t cells_read_blindly = 2'000'000;

// From here on redrawing after every write would be seen.
constexpr std::int64_t cells_redrawn_at_once = 1'000;

std::int64_t count_of(const std::vector<Area>& areas) {
    std::int64_t cells = 0;
    for (const Area& area : areas) cells += area.cells();
    return cells;
}

// Colours blocks of one sheet.
class SheetColoring {
  public:
    SheetColoring(const Library& library, const excel::Worksheet& sheet, bool hyperlinks, const Paints& paints,
                  RespectedColors& respected)
        : sheet_(sheet),
          reader_(sheet, hyperlinks, library.trace),
          locks_(sheet, library.trace),
          paints_(paints),
          painter_(sheet, respected, library.trace) {}

    void color(const Area& area) {
        const excel::Range range = sheet_.Range(formula::area_text(area));
        ClassBlock block = reader_.read(range, area);
        locks_.take_out(block);
        std::vector<std::uint8_t> numbers(block.cells.size());
        std::ranges::transform(block.cells, numbers.begin(), [&](CellClass cell) { return paints_.number_of(cell); });
        if (std::ranges::count(numbers, 0) == std::ssize(numbers)) return;
        std::optional<std::int32_t> before;
        const Value now = range.Font().Color();
        if (!now.is(Value::Kind::Null)) before = automation::to_integer(now);
        for (std::uint8_t paint = 1; paint <= paints_.count(); ++paint) {
            painter_.paint(rectangles(area, numbers, paint), paints_.color(paint), before);
        }
    }

  private:
    excel::Worksheet sheet_;
    ClassReader reader_;
    Locks locks_;
    const Paints& paints_;
    FontPainter painter_;
};

// The rectangles of a large range that hold anything.
std::vector<Area> filled_areas(const excel::Range& range, const automation::ResumeNext& attempt) {
    std::vector<Area> filled;
    for (const std::int32_t type : {excel::xlCellTypeConstants, excel::xlCellTypeFormulas}) {
        // A failure means that there are none.
        attempt([&] {
            const std::vector<Area> areas = areas_of(range.SpecialCells(type));
            filled.insert(filled.end(), areas.begin(), areas.end());
        });
    }
    return filled;
}

}  // namespace

AutoColor::AutoColor(const Library& library, const AutoColorSettings& settings)
    : library_(library),
      hyperlinks_(settings.bAutoColorHyperlinks),
      paints_(settings),
      attempt_(library.trace),
      respected_(library) {}

AutoColor::~AutoColor() {
    if (paused_) attempt_([&] { library_.application.ScreenUpdating(true); });
}

void AutoColor::pause_redrawing() {
    if (paused_) return;
    attempt_([&] {
        if (!library_.application.ScreenUpdating()) return;
        library_.application.ScreenUpdating(false);
        paused_ = true;
    });
}

void AutoColor::color(const excel::Range& range) {
    attempt_([&] {
        const excel::Worksheet sheet = range.Worksheet();
        Areas cells;
        // Beyond the used range no cell holds anything.
        const Areas used = areas_of(sheet.UsedRange());
        for (const Area& area : areas_of(range)) {
            for (const Area& part : used) {
                if (const auto common = area.intersection(part)) cells.push_back(*common);
            }
        }
        color_cells(sheet, cells);
    });
}

void AutoColor::color(const excel::Worksheet& sheet) {
    attempt_([&] { color_cells(sheet, areas_of(sheet.UsedRange())); });
}

void AutoColor::color(const excel::Workbook& workbook) {
    const excel::Worksheets sheets = workbook.Worksheets();
    const std::int32_t count = sheets.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        attempt_([&] { color(sheets.Item(i)); });
    }
}

void AutoColor::color_cells(const excel::Worksheet& sheet, const Areas& cells) {
    if (cells.empty()) return;
    if (count_of(cells) > cells_redrawn_at_once) pause_redrawing();
    SheetColoring coloring(library_, sheet, hyperlinks_, paints_, respected_);
    const automation::Trace nobody;
    Areas blocks;
    for (const Area& area : cells) {
        if (area.cells() <= cells_read_blindly) {
            blocks.push_back(area);
            continue;
        }
        const Areas filled = filled_areas(sheet.Range(formula::area_text(area)), automation::ResumeNext(nobody));
        blocks.insert(blocks.end(), filled.begin(), filled.end());
    }
    for (const Area& area : blocks) {
        const auto rows = static_cast<std::int32_t>(std::max<std::int64_t>(1, most_cells_at_once / area.columns()));
        for (std::int32_t row = area.first_row; row <= area.last_row; row += rows) {
            const Area block{row, area.first_column, std::min(area.last_row, row + rows - 1), area.last_column};
            attempt_([&] { coloring.color(block); });
        }
    }
}

}  // namespace kestrune::brxllib
