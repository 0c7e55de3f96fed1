#include "brxllib/undo/LyingThings.h"

#include <algorithm>

#include "automation/AutomationError.h"
#include "automation/ResumeNext.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/undo/Lines.h"
#include "excel/Constants.h"
#include "formula/A1.h"
#include "formula/AreaCut.h"

namespace kestrune::brxllib::undo {
namespace {

using formula::Area;
using Areas = std::vector<Area>;

// Lines that go and come in again.
class ThereAndBack {
  public:
    ThereAndBack(const Areas& lines, bool rows) : lines_(lines), edits_(edits_of(lines, rows, true, {})) {
        for (formula::Edit& edit : edits_of(lines, rows, false, {})) edits_.push_back(std::move(edit));
    }

    [[nodiscard]] bool touches(const Area& area) const {
        return std::ranges::any_of(lines_, [&](const Area& line) { return line.intersection(area).has_value(); });
    }
    // Whether an area is afterwards what it was.
    [[nodiscard]] bool keeps(const Area& area) const {
        Area now = area;
        for (const formula::Edit& edit : edits_) {
            const auto left = formula::adjust_area(now, edit);
            if (!left) return false;
            now = *left;
        }
        return now == area;
    }

  private:
    const Areas& lines_;
    std::vector<formula::Edit> edits_;
};

// None where Excel finds none, which it tells by a failure.
Areas special_cells(const excel::Range& range, std::int32_t type) {
    try {
        return areas_of(range.SpecialCells(type));
    } catch (const automation::AutomationError&) {
        return {};
    }
}

// A rule goes on over rows that come in between its cells, so that only those that end in the lines are cut short.
bool cuts_validations(const excel::Range& lines, const ThereAndBack& way) {
    Areas left = special_cells(lines, excel::xlCellTypeAllValidation);
    const excel::Worksheet sheet = lines.Worksheet();
    while (!left.empty()) {
        const excel::Range first = sheet.Range(formula::cell_text(left.back().top_left()));
        Areas same = special_cells(first, excel::xlCellTypeSameValidation);
        if (!std::ranges::all_of(same, [&](const Area& area) { return way.keeps(area); })) return true;
        same.push_back(Area::cell(left.back().top_left()));
        for (const Area& area : same) {
            Areas rest;
            for (const Area& part : left)
                for (const Area& piece : formula::area_without(part, area)) rest.push_back(piece);
            left = std::move(rest);
        }
    }
    return false;
}

}  // namespace

std::vector<std::string> things_lost_with(const excel::Range& lines, const Areas& areas, bool rows,
                                          const automation::Trace& trace) {
    const automation::ResumeNext attempt(trace);
    const ThereAndBack way(areas, rows);
    const excel::Worksheet sheet = lines.Worksheet();
    std::vector<std::string> clauses;
    attempt([&] {
        if (lines.Hyperlinks().Count() > 0) clauses.emplace_back("its cells hold hyperlinks");
    });
    if (!special_cells(lines, excel::xlCellTypeComments).empty()) {
        clauses.emplace_back("its cells hold comments");
    }
    if (cuts_validations(lines, way)) clauses.emplace_back("its cells hold data validations");
    attempt([&] {
        const excel::ListObjects tables = sheet.ListObjects();
        const std::int32_t count = tables.Count();
        for (std::int32_t i = 1; i <= count; ++i) {
            const excel::ListObject table = tables.Item(i);
            const Area area = areas_of(table.Range()).front();
            // A column of a table is more than its cells.
            if (way.touches(area) && (!rows || !way.keeps(area))) {
                clauses.push_back("the table " + table.Name() + " would not be the same again");
            }
        }
    });
    attempt([&] {
        const excel::Shapes shapes = sheet.Shapes();
        const std::int32_t count = shapes.Count();
        for (std::int32_t i = 1; i <= count; ++i) {
            const excel::Shape shape = shapes.Item(i);
            const Area first = areas_of(shape.TopLeftCell()).front();
            const Area last = areas_of(shape.BottomRightCell()).front();
            const Area area{first.first_row, first.first_column, last.last_row, last.last_column};
            if (way.touches(area) && !way.keeps(area)) clauses.push_back(shape.Name() + " lies on its cells");
        }
    });
    return clauses;
}

}  // namespace kestrune::brxllib::undo
