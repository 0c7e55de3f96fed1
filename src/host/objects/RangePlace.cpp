#include <limits>

#include "formula/SheetName.h"
#include "host/objects/Address.h"
#include "host/objects/Optional.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"
#include "host/objects/WorksheetObject.h"

namespace kestrune::host {
namespace {

// "[Book1]Sheet1!", in apostrophes where the sheet's or the book's name needs them.
std::string external_prefix(const Sheet& sheet) {
    const std::string& book = sheet.workbook().name;
    std::string prefix;
    if (!formula::needs_quotes(sheet.name()) && !formula::needs_quotes(book)) {
        prefix = "[" + book + "]" + sheet.name();
    } else {
        prefix = "'";
        for (const char c : "[" + book + "]" + sheet.name()) prefix.append(c == '\'' ? 2 : 1, c);
        prefix += '\'';
    }
    return prefix + '!';
}

// The area grown until no merged area lies partly inside. Whole rows and columns stay what was asked for: a merged
// title must not make one column ten.
Area with_merges(Sheet& sheet, Area area) {
    if (area.whole_rows() || area.whole_columns()) return area;
    for (bool grown = true; grown;) {
        grown = false;
        for (const Area& merge : sheet.merges()) {
            if (!area.intersection(merge) || area.contains(merge)) continue;
            area = {std::min(area.first_row, merge.first_row), std::min(area.first_column, merge.first_column),
                    std::max(area.last_row, merge.last_row), std::max(area.last_column, merge.last_column)};
            grown = true;
        }
    }
    return area;
}

double count_of(const std::vector<Area>& areas, RangeObject::Unit unit) {
    if (unit == RangeObject::Unit::Rows) return areas.front().rows();
    if (unit == RangeObject::Unit::Columns) return areas.front().columns();
    double cells = 0;
    for (const Area& area : areas) cells += static_cast<double>(area.cells());
    return cells;
}

}  // namespace

ObjectRef RangeObject::worksheet() const { return std::make_shared<WorksheetObject>(session(), cells_.sheet()); }

std::string RangeObject::address(const Value& row_absolute, const Value& column_absolute, const Value& reference_style,
                                 const Value& external, const Value& relative_to) const {
    const formula::Absolute absolute{value_or(row_absolute, true), value_or(column_absolute, true)};
    const auto style = value_or(reference_style, xlA1);
    if (style != xlA1 && style != xlR1C1) refuse("Range.Address", "the reference style is xlA1 or xlR1C1");
    Position base;
    if (!relative_to.is(Value::Kind::Missing)) {
        base = range_argument("Range.Address", relative_to)->cell_range().first().top_left();
    }
    std::string text = value_or(external, false) ? external_prefix(cells_.sheet()) : std::string();
    bool first = true;
    for (const Area& area : cells_.areas()) {
        if (!first) text += ',';
        first = false;
        text += style == xlA1 ? formula::area_text(area, absolute) : r1c1_text(area, absolute, base);
    }
    return text;
}

std::int32_t RangeObject::count() const {
    const double cells = count_of(cells_.areas(), unit_);
    if (cells > std::numeric_limits<std::int32_t>::max()) {
        throw automation::AutomationError(automation::hresult::overflow, "Range.Count", "there are too many cells");
    }
    return static_cast<std::int32_t>(cells);
}

Value RangeObject::count_large() const { return count_of(cells_.areas(), unit_); }

void RangeObject::select() {
    Sheet& sheet = cells_.sheet();
    if (session().active_sheet() != &sheet) {
        refuse("Range.Select", "the sheet '" + sheet.name() + "' is not the active one");
    }
    std::vector<Area> selection;
    for (const Area& area : cells_.areas()) selection.push_back(with_merges(sheet, area));
    const bool other_cells = selection != sheet.view().selection;
    sheet.view().selection = std::move(selection);
    sheet.view().active_cell = sheet.view().selection.front().top_left();
    sheet.view().selection_changed = true;
    if (other_cells && session().heard()) {
        session().raise(
            "SheetSelectionChange",
            {worksheet(), std::make_shared<RangeObject>(CellRange(session(), sheet, sheet.view().selection))});
    }
}

void RangeObject::activate() {
    Sheet& sheet = cells_.sheet();
    const Position cell = cells_.first().top_left();
    if (session().active_sheet() == &sheet) {
        for (const Area& area : sheet.view().selection) {
            if (!area.contains(cell)) continue;
            sheet.view().active_cell = cell;
            sheet.view().selection_changed = true;
            return;
        }
    }
    select();
}

}  // namespace kestrune::host
