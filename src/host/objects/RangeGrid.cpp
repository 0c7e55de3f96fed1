#include <algorithm>
#include <cmath>

#include "host/objects/FilledCells.h"
#include "host/objects/Optional.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"
#include "host/objects/RowsOf.h"
#include "host/objects/SheetMeasures.h"

namespace kestrune::host {
namespace {

constexpr double tallest_row = 409.5;    // points
constexpr double widest_column = 255;    // characters
constexpr std::int32_t most_levels = 8;  // of an outline, the ungrouped one included

// Collects answers until two of them differ.
class Common {
  public:
    // Whether all answers so far are the same.
    bool add(Value answer) {
        if (!answer_) {
            answer_ = std::move(answer);
        } else if (!(*answer_ == answer)) {
            mixed_ = true;
        }
        return !mixed_;
    }
    [[nodiscard]] Value answer() const { return mixed_ ? Value(Null{}) : answer_.value_or(Value()); }

  private:
    std::optional<Value> answer_;
    bool mixed_ = false;
};

template <class Read>
Value common_of_rows(const CellRange& cells, Read&& read) {
    Common common;
    for (const Area& area : cells.areas()) {
        visit_row_runs(cells.sheet(), area.first_row, area.last_row,
                       [&](std::int32_t first, std::int32_t) { return common.add(read(first)); });
    }
    return common.answer();
}

template <class Read>
Value common_of_columns(const CellRange& cells, Read&& read) {
    Common common;
    for (const Area& area : cells.areas()) {
        cells.sheet().columns().visit(area.first_column, area.last_column,
                                      [&](const ColumnRun& run) { common.add(read(run)); });
    }
    return common.answer();
}

bool all_of(const std::vector<Area>& areas, bool (Area::*property)() const) {
    return std::ranges::all_of(areas, [&](const Area& area) { return (area.*property)(); });
}

void require_allowed(Sheet& sheet, bool allowed, std::string_view member) {
    if (sheet.protection().on && !allowed) refuse(member, "the sheet '" + sheet.name() + "' is protected");
}

}  // namespace

bool RangeObject::of_columns() const {
    return unit_ == Unit::Columns ||
           (all_of(cells_.areas(), &Area::whole_columns) && !all_of(cells_.areas(), &Area::whole_rows));
}

Value RangeObject::row_height() const {
    return common_of_rows(cells_, [&](std::int32_t row) { return Value(cells_.sheet().row_height(row)); });
}

void RangeObject::set_row_height(double points) {
    constexpr std::string_view member = "Range.RowHeight";
    if (!(points >= 0 && points <= tallest_row)) refuse(member, "a row's height is 0 to 409.5 points");
    require_allowed(cells_.sheet(), cells_.sheet().protection().format_rows, member);
    for (const Area& area : cells_.areas()) cells_.sheet().set_row_height(area.first_row, area.last_row, points);
    cells_.changed();
}

Value RangeObject::column_width() const {
    return common_of_columns(cells_,
                             [&](const ColumnRun& run) { return Value(cells_.sheet().column_width(run.first)); });
}

void RangeObject::set_column_width(double characters) {
    constexpr std::string_view member = "Range.ColumnWidth";
    if (!(characters >= 0 && characters <= widest_column)) refuse(member, "a column's width is 0 to 255 characters");
    require_allowed(cells_.sheet(), cells_.sheet().protection().format_columns, member);
    for (const Area& area : cells_.areas()) {
        cells_.sheet().set_column_width(area.first_column, area.last_column, characters);
    }
    cells_.changed();
}

Value RangeObject::use_standard_height() const {
    return common_of_rows(cells_, [&](std::int32_t row) {
        const RowFormat* format = cells_.sheet().row_format(row);
        return Value(!format || !format->custom_height);
    });
}

void RangeObject::set_use_standard_height(bool on) {
    require_allowed(cells_.sheet(), cells_.sheet().protection().format_rows, "Range.UseStandardHeight");
    if (!on) return;
    for (const Area& area : cells_.areas()) {
        cells_.sheet().change_rows(area.first_row, area.last_row, [](RowFormat& row) {
            row.height = -1;
            row.custom_height = false;
        });
    }
    cells_.changed();
}

Value RangeObject::use_standard_width() const {
    return common_of_columns(cells_, [&](const ColumnRun& run) { return Value(run.width < 0); });
}

void RangeObject::set_use_standard_width(bool on) {
    require_allowed(cells_.sheet(), cells_.sheet().protection().format_columns, "Range.UseStandardWidth");
    if (!on) return;
    for (const Area& area : cells_.areas()) {
        cells_.sheet().columns().change(area.first_column, area.last_column, [](ColumnRun& run) {
            run.width = -1;
            run.custom_width = false;
        });
    }
    cells_.changed();
}

double RangeObject::height() const {
    return rows_height(cells_.sheet(), cells_.first().first_row, cells_.first().last_row);
}

double RangeObject::width() const {
    return columns_width(cells_.sheet(), cells_.first().first_column, cells_.first().last_column);
}

double RangeObject::top() const { return rows_height(cells_.sheet(), 1, cells_.first().first_row - 1); }
double RangeObject::left() const { return columns_width(cells_.sheet(), 1, cells_.first().first_column - 1); }

Value RangeObject::hidden() const {
    if (of_columns()) {
        return common_of_columns(
            cells_, [&](const ColumnRun& run) { return Value(cells_.sheet().column_width(run.first) == 0); });
    }
    if (!all_of(cells_.areas(), &Area::whole_rows)) {
        refuse("Range.Hidden", "only entire rows or columns can be hidden");
    }
    return common_of_rows(cells_, [&](std::int32_t row) { return Value(cells_.sheet().row_height(row) == 0); });
}

void RangeObject::set_hidden(bool on) {
    constexpr std::string_view member = "Range.Hidden";
    Sheet& sheet = cells_.sheet();
    const bool columns = of_columns() && all_of(cells_.areas(), &Area::whole_columns);
    if (!columns && !all_of(cells_.areas(), &Area::whole_rows)) {
        refuse(member, "only entire rows or columns can be hidden");
    }
    require_allowed(sheet, columns ? sheet.protection().format_columns : sheet.protection().format_rows, member);
    for (const Area& area : cells_.areas()) {
        if (columns) {
            show_columns(sheet, area.first_column, area.last_column, !on);
        } else {
            show_rows(sheet, area.first_row, area.last_row, !on);
        }
    }
    cells_.changed();
}

Value RangeObject::outline_level() const {
    if (of_columns()) {
        return common_of_columns(cells_, [](const ColumnRun& run) { return Value(run.outline_level + 1); });
    }
    return common_of_rows(cells_, [&](std::int32_t row) {
        const RowFormat* format = cells_.sheet().row_format(row);
        return Value(format ? format->outline_level + 1 : 1);
    });
}

void RangeObject::set_outline_level(std::int32_t level) {
    constexpr std::string_view member = "Range.OutlineLevel";
    if (level < 1 || level > most_levels) refuse(member, "an outline level is 1 to 8");
    Sheet& sheet = cells_.sheet();
    require_allowed(sheet, false, member);
    const auto stored = static_cast<std::uint8_t>(level - 1);
    for (const Area& area : cells_.areas()) {
        if (of_columns()) {
            sheet.columns().change(area.first_column, area.last_column,
                                   [&](ColumnRun& run) { run.outline_level = stored; });
        } else {
            sheet.change_rows(area.first_row, area.last_row, [&](RowFormat& row) { row.outline_level = stored; });
        }
    }
    cells_.changed();
}

void RangeObject::change_outline(std::string_view member, std::int32_t step) {
    Sheet& sheet = cells_.sheet();
    const bool rows = unit_ == Unit::Rows || all_of(cells_.areas(), &Area::whole_rows);
    if (!rows && unit_ != Unit::Columns && !all_of(cells_.areas(), &Area::whole_columns)) {
        refuse(member, "whole rows or whole columns are grouped");
    }
    require_allowed(sheet, false, member);
    // Looked through before anything changes.
    std::int32_t deepest = 0;
    for (const Area& area : cells_.areas()) {
        for (std::int32_t i = rows ? area.first_row : area.first_column; i <= (rows ? area.last_row : area.last_column);
             ++i) {
            const RowFormat* format = rows ? sheet.row_format(i) : nullptr;
            const std::int32_t level =
                rows ? (format ? format->outline_level : 0) : sheet.columns().at(i).outline_level;
            deepest = std::max(deepest, level);
        }
    }
    if (deepest + step >= most_levels) refuse(member, "an outline has 8 levels");
    if (deepest + step < 0) refuse(member, "nothing is grouped here");
    const auto moved = [&](std::uint8_t level) { return static_cast<std::uint8_t>(std::max(level + step, 0)); };
    for (const Area& area : cells_.areas()) {
        if (rows) {
            sheet.change_rows(area.first_row, area.last_row,
                              [&](RowFormat& row) { row.outline_level = moved(row.outline_level); });
        } else {
            sheet.columns().change(area.first_column, area.last_column,
                                   [&](ColumnRun& run) { run.outline_level = moved(run.outline_level); });
        }
    }
    cells_.changed();
}

void RangeObject::group(const Value& start, const Value& end, const Value& by, const Value& periods) {
    constexpr std::string_view member = "Range.Group";
    for (const Value* argument : {&start, &end, &by, &periods}) {
        if (!argument->is(Value::Kind::Missing)) refuse(member, "the host groups rows and columns, not pivot fields");
    }
    change_outline(member, 1);
}

void RangeObject::ungroup() { change_outline("Range.Ungroup", -1); }

Value RangeObject::merge_cells() const {
    Sheet& sheet = cells_.sheet();
    std::int64_t merged = 0;
    std::int64_t all = 0;
    for (const Area& area : cells_.areas()) {
        all += area.cells();
        for (const Area& merge : sheet.merges()) {
            const auto common = area.intersection(merge);
            if (!common) continue;
            // A range that takes in part of a merged area and more is neither merged nor not.
            if (!area.contains(merge) && !merge.contains(area)) return Null{};
            merged += common->cells();
        }
    }
    if (merged != 0 && merged != all) return Null{};
    return merged != 0;
}

void RangeObject::set_merge_cells(bool on) {
    if (on) {
        merge(Missing{});
    } else {
        un_merge();
    }
}

ObjectRef RangeObject::merge_area() const {
    const Area& area = cells_.first();
    const auto merge = cells_.sheet().merge_at(area.top_left());
    if (cells_.areas().size() == 1) {
        if (merge && merge->contains(area)) return make({*merge});
        if (area.single_cell()) return make({area});
    }
    refuse("Range.MergeArea", "the range is neither one cell nor inside one merged area");
}

void RangeObject::merge(const Value& across) {
    Sheet& sheet = cells_.sheet();
    require_allowed(sheet, false, "Range.Merge");
    const bool by_rows = value_or(across, false);
    for (const Area& area : cells_.areas()) {
        const std::int32_t step = by_rows ? 1 : area.rows();
        for (std::int32_t row = area.first_row; row <= area.last_row; row += step) {
            const Area strip{row, area.first_column, row + step - 1, area.last_column};
            sheet.unmerge(strip);
            if (strip.single_cell()) continue;
            keep_first_content(sheet, strip);
            sheet.merge(strip);
        }
    }
    cells_.changed();
}

void RangeObject::un_merge() {
    Sheet& sheet = cells_.sheet();
    require_allowed(sheet, false, "Range.UnMerge");
    for (const Area& area : cells_.areas()) sheet.unmerge(area);
    cells_.changed();
}

}  // namespace kestrune::host
