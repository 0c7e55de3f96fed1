#include "formula/Reference.h"

#include <utility>

namespace kestrune::formula {
namespace {

std::int32_t wrapped(std::int64_t value, std::int64_t limit) {
    const std::int64_t rest = (value - 1) % limit;
    return static_cast<std::int32_t>((rest < 0 ? rest + limit : rest) + 1);
}

bool move(Coordinate& coordinate, std::int64_t distance, std::int32_t limit, OffSheet off_sheet) {
    if (coordinate.absolute || distance == 0) return true;
    const std::int64_t target = coordinate.value + distance;
    if (target >= 1 && target <= limit) {
        coordinate.value = static_cast<std::int32_t>(target);
        return true;
    }
    coordinate.value = wrapped(target, limit);
    return off_sheet == OffSheet::wrap;
}

void subtract_base(Coordinate& coordinate, std::int32_t base) {
    if (!coordinate.absolute) coordinate.value -= base;
}

void add_base(Coordinate& coordinate, std::int32_t base, std::int32_t limit) {
    if (!coordinate.absolute) coordinate.value = wrapped(std::int64_t{coordinate.value} + base, limit);
}

}  // namespace

std::optional<Reference> moved(Reference reference, std::int64_t rows, std::int64_t columns, OffSheet off_sheet) {
    if (reference.has_rows() &&
        !(move(reference.first_row, rows, max_rows, off_sheet) && move(reference.last_row, rows, max_rows, off_sheet)))
        return std::nullopt;
    if (reference.has_columns() && !(move(reference.first_column, columns, max_columns, off_sheet) &&
                                     move(reference.last_column, columns, max_columns, off_sheet)))
        return std::nullopt;
    sort_corners(reference);
    return reference;
}

void sort_corners(Reference& reference) {
    if (reference.last_row.value < reference.first_row.value) std::swap(reference.first_row, reference.last_row);
    if (reference.last_column.value < reference.first_column.value)
        std::swap(reference.first_column, reference.last_column);
}

Area area_of(const Reference& reference) {
    Reference sorted = reference;
    sort_corners(sorted);
    Area area = Area::sheet();
    if (sorted.has_rows()) {
        area.first_row = sorted.first_row.value;
        area.last_row = sorted.last_row.value;
    }
    if (sorted.has_columns()) {
        area.first_column = sorted.first_column.value;
        area.last_column = sorted.last_column.value;
    }
    return area;
}

Reference to_distances(Reference reference, Position base) {
    if (reference.has_rows()) {
        subtract_base(reference.first_row, base.row);
        subtract_base(reference.last_row, base.row);
    }
    if (reference.has_columns()) {
        subtract_base(reference.first_column, base.column);
        subtract_base(reference.last_column, base.column);
    }
    return reference;
}

Reference to_positions(Reference reference, Position base) {
    if (reference.has_rows()) {
        add_base(reference.first_row, base.row, max_rows);
        add_base(reference.last_row, base.row, max_rows);
    }
    if (reference.has_columns()) {
        add_base(reference.first_column, base.column, max_columns);
        add_base(reference.last_column, base.column, max_columns);
    }
    sort_corners(reference);
    return reference;
}

}  // namespace kestrune::formula
