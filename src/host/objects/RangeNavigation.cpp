#include <algorithm>
#include <cmath>

#include "automation/Enumeration.h"
#include "formula/Column.h"
#include "formula/Selection.h"
#include "host/objects/AreasObject.h"
#include "host/objects/DefinedNames.h"
#include "host/objects/FilledCells.h"
#include "host/objects/Optional.h"
#include "host/objects/RangeObject.h"
#include "host/objects/RangeReference.h"
#include "host/objects/Refusal.h"
#include "host/objects/ShapesObject.h"
#include "host/objects/SpecialCells.h"

namespace kestrune::host {
namespace {

constexpr std::string_view outside = "there are no such cells on the sheet";

// An area moved and stretched; error 1004 when it leaves the sheet.
Area checked(std::string_view member, std::int64_t first_row, std::int64_t first_column, std::int64_t last_row,
             std::int64_t last_column) {
    if (first_row < 1 || first_column < 1 || last_row > formula::max_rows || last_column > formula::max_columns ||
        last_row < first_row || last_column < first_column) {
        refuse(member, outside);
    }
    return {static_cast<std::int32_t>(first_row), static_cast<std::int32_t>(first_column),
            static_cast<std::int32_t>(last_row), static_cast<std::int32_t>(last_column)};
}

// A column as an argument: its number, or its letters.
std::int64_t column_number(std::string_view member, const Value& index) {
    const auto* letters = index.if_is<std::string>();
    if (!letters || letters->empty() || (letters->front() >= '0' && letters->front() <= '9')) {
        return automation::to_integer(index);
    }
    const auto column = formula::parse_column_letters(*letters);
    if (!column) refuse(member, "there is no column '" + *letters + "'");
    return *column;
}

// How many parts For Each finds in an area.
std::int64_t parts_of(const Area& area, RangeObject::Unit unit) {
    if (unit == RangeObject::Unit::Rows) return area.rows();
    if (unit == RangeObject::Unit::Columns) return area.columns();
    return area.cells();
}

}  // namespace

ObjectRef RangeObject::make(std::vector<Area> areas, Unit unit) const {
    return std::make_shared<RangeObject>(CellRange(session(), cells_.sheet(), std::move(areas)), unit);
}

ObjectRef RangeObject::new_enum() const {
    std::int64_t parts = 0;
    for (const Area& area : cells_.areas()) parts += parts_of(area, unit_);
    return automation::enumerate(parts, [self = std::make_shared<const RangeObject>(cells_, unit_)](
                                            std::int64_t position) { return self->part_at(position); });
}

ObjectRef RangeObject::part_at(std::int64_t position) const {
    for (const Area& area : cells_.areas()) {
        const std::int64_t parts = parts_of(area, unit_);
        if (position >= parts) {
            position -= parts;
            continue;
        }
        Area part = area;
        if (unit_ != Unit::Columns) {
            const std::int64_t rows_down = unit_ == Unit::Rows ? position : position / area.columns();
            part.first_row = part.last_row = area.first_row + static_cast<std::int32_t>(rows_down);
        }
        if (unit_ != Unit::Rows) {
            const std::int64_t columns_right = unit_ == Unit::Columns ? position : position % area.columns();
            part.first_column = part.last_column = area.first_column + static_cast<std::int32_t>(columns_right);
        }
        return make({part}, unit_);
    }
    refuse("Range._NewEnum", outside);
}

ObjectRef RangeObject::areas() const { return std::make_shared<AreasObject>(cells_); }
ObjectRef RangeObject::cells() const { return make(cells_.areas()); }
ObjectRef RangeObject::rows() const { return make(cells_.areas(), Unit::Rows); }
ObjectRef RangeObject::columns() const { return make(cells_.areas(), Unit::Columns); }

ObjectRef RangeObject::entire_row() const {
    std::vector<Area> whole = cells_.areas();
    for (Area& area : whole) area = {area.first_row, 1, area.last_row, formula::max_columns};
    return make(std::move(whole), Unit::Rows);
}

ObjectRef RangeObject::entire_column() const {
    std::vector<Area> whole = cells_.areas();
    for (Area& area : whole) area = {1, area.first_column, formula::max_rows, area.last_column};
    return make(std::move(whole), Unit::Columns);
}

ObjectRef RangeObject::line_of_unit(const Value& index) const {
    const Area& base = cells_.first();
    const auto* text = index.if_is<std::string>();
    if (text && text->find(':') != std::string::npos) {
        // Rows("2:4") and Columns("B:C") count from the range's own first row and column.
        auto parsed = formula::parse_selection(*text);
        const auto* selection = std::get_if<formula::Selection>(&parsed);
        if (!selection || selection->sheet) refuse("Range.Item", "there are no rows or columns '" + *text + "'");
        std::vector<Area> lines;
        for (const Area& area : selection->areas) {
            lines.push_back(
                unit_ == Unit::Rows
                    ? checked("Range.Item", std::int64_t{base.first_row} + area.first_row - 1, base.first_column,
                              std::int64_t{base.first_row} + area.last_row - 1, base.last_column)
                    : checked("Range.Item", base.first_row, std::int64_t{base.first_column} + area.first_column - 1,
                              base.last_row, std::int64_t{base.first_column} + area.last_column - 1));
        }
        return make(std::move(lines), unit_);
    }
    if (unit_ == Unit::Rows) {
        const std::int64_t row = std::int64_t{base.first_row} + automation::to_integer(index) - 1;
        return make({checked("Range.Item", row, base.first_column, row, base.last_column)}, unit_);
    }
    const std::int64_t column = base.first_column + column_number("Range.Item", index) - 1;
    return make({checked("Range.Item", base.first_row, column, base.last_row, column)}, unit_);
}

ObjectRef RangeObject::item(const Value& row_index, const Value& column_index) const {
    const Area& base = cells_.first();
    const bool one_index = column_index.is(Value::Kind::Missing);
    if (one_index && unit_ != Unit::Cells) return line_of_unit(row_index);
    std::int64_t row = automation::to_integer(row_index);
    std::int64_t column = 1;
    if (one_index) {
        // Counted along the rows of the first area, and on below it.
        const std::int64_t ordinal = row - 1;
        const std::int64_t width = base.columns();
        row = ordinal >= 0 ? ordinal / width + 1 : -((-ordinal + width - 1) / width) + 1;
        column = ordinal - (row - 1) * width + 1;
    } else {
        column = column_number("Range.Item", column_index);
    }
    row += base.first_row - 1;
    column += base.first_column - 1;
    return make({checked("Range.Item", row, column, row, column)});
}

Value RangeObject::default_value(const Value& row_index, const Value& column_index) const {
    if (row_index.is(Value::Kind::Missing)) return value(Missing{});
    return item(row_index, column_index);
}

void RangeObject::set_default_value(const Value& row_index, const Value& column_index, const Value& value) {
    if (row_index.is(Value::Kind::Missing)) return set_value(Missing{}, value);
    range_argument("Range.Item", item(row_index, column_index))->set_value(Missing{}, value);
}

ObjectRef RangeObject::range(const Value& cell1, const Value& cell2) const {
    const CellRange absolute = range_of_arguments("Range.Range", session(), cells_.sheet(), cell1, cell2);
    // Addresses count from the range's own top-left cell; ranges and names already say where they are.
    const auto* text = cell1.if_is<std::string>();
    if (!text || !names_addresses_only(*text)) return std::make_shared<RangeObject>(absolute);
    const std::int64_t down = cells_.first().first_row - 1;
    const std::int64_t right = cells_.first().first_column - 1;
    std::vector<Area> moved;
    for (const Area& area : absolute.areas()) {
        const std::int64_t rows = area.whole_columns() ? 0 : down;
        const std::int64_t columns = area.whole_rows() ? 0 : right;
        moved.push_back(checked("Range.Range", area.first_row + rows, area.first_column + columns, area.last_row + rows,
                                area.last_column + columns));
    }
    return make(std::move(moved));
}

ObjectRef RangeObject::offset(const Value& rows, const Value& columns) const {
    const std::int64_t down = value_or(rows, 0);
    const std::int64_t right = value_or(columns, 0);
    std::vector<Area> moved;
    for (const Area& area : cells_.areas()) {
        moved.push_back(checked("Range.Offset", area.first_row + down, area.first_column + right, area.last_row + down,
                                area.last_column + right));
    }
    return make(std::move(moved));
}

ObjectRef RangeObject::resize(const Value& rows, const Value& columns) const {
    const Area& base = cells_.first();
    const std::int64_t height = value_or(rows, base.rows());
    const std::int64_t width = value_or(columns, base.columns());
    return make({checked("Range.Resize", base.first_row, base.first_column, base.first_row + height - 1,
                         base.first_column + width - 1)});
}

ObjectRef RangeObject::end(std::int32_t direction) const {
    return make({Area::cell(end_of_run(cells_.sheet(), cells_.first().top_left(), direction))});
}

ObjectRef RangeObject::current_region() const {
    return make({filled_region(cells_.sheet(), Area::cell(cells_.first().top_left()))});
}

// Cells with comments, or with validations: all, or those of the rule that the first cell has.
std::vector<Area> RangeObject::lying_cells(std::int32_t type) const {
    const LyingThings things = lying_on(cells_.sheet());
    std::vector<Area> wanted;
    if (type == xlCellTypeComments) wanted = things.comments;
    for (const auto& rule : things.validations) {
        if (type == xlCellTypeComments) break;
        const Position first = cells_.first().top_left();
        const bool same = std::ranges::any_of(rule, [&](const Area& area) { return area.contains(first); });
        if (type == xlCellTypeAllValidation || same) wanted.insert(wanted.end(), rule.begin(), rule.end());
    }
    const bool whole_sheet = cells_.areas().size() == 1 && cells_.first().single_cell();
    std::vector<Area> found;
    for (const Area& area : whole_sheet ? std::vector{Area::sheet()} : cells_.areas()) {
        for (const Area& one : wanted)
            if (const auto common = area.intersection(one)) found.push_back(*common);
    }
    if (found.empty()) refuse("Range.SpecialCells", "No cells were found.");
    return found;
}

ObjectRef RangeObject::special_cells(std::int32_t type, const Value& kinds) const {
    constexpr std::string_view member = "Range.SpecialCells";
    Sheet& sheet = cells_.sheet();
    const Area used = sheet.used_area();
    if (type == xlCellTypeLastCell) return make({Area::cell({used.last_row, used.last_column})});
    if (type == xlCellTypeComments || type == xlCellTypeAllValidation || type == xlCellTypeSameValidation) {
        return make(lying_cells(type));
    }
    if (type != xlCellTypeConstants && type != xlCellTypeFormulas && type != xlCellTypeBlanks) {
        refuse(member, "the host finds constants, formulas, blank cells, comments, validations and the last cell only");
    }
    const SpecialCells wanted{type, value_or(kinds, xlNumbers | xlTextValues | xlLogical | xlErrors)};
    const bool whole_sheet = cells_.areas().size() == 1 && cells_.first().single_cell();
    std::vector<Area> found;
    for (const Area& area : whole_sheet ? std::vector{used} : cells_.areas()) {
        const auto inside = area.intersection(used);
        if (!inside) continue;
        const std::vector<Area> part = find_special_cells(sheet, *inside, wanted);
        found.insert(found.end(), part.begin(), part.end());
    }
    if (found.empty()) refuse(member, "No cells were found.");
    return make(std::move(found));
}

ObjectRef RangeObject::next() const {
    const Area& base = cells_.first();
    const std::int64_t column = std::int64_t{base.last_column} + 1;
    return make({checked("Range.Next", base.first_row, column, base.first_row, column)});
}

ObjectRef RangeObject::previous() const {
    const Area& base = cells_.first();
    const std::int64_t column = std::int64_t{base.first_column} - 1;
    return make({checked("Range.Previous", base.first_row, column, base.first_row, column)});
}

}  // namespace kestrune::host
