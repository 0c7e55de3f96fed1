#include "host/objects/Address.h"

#include "formula/R1C1.h"

namespace kestrune::host {

std::string r1c1_text(const formula::Area& area, formula::Absolute absolute, formula::Position base) {
    const auto coordinate = [](std::int32_t position, bool is_absolute, std::int32_t from) {
        return formula::Coordinate{is_absolute ? position : position - from, is_absolute};
    };
    formula::Reference reference;
    if (area.whole_rows()) {
        reference.shape = formula::Shape::rows;
        reference.range = area.rows() > 1;
    } else if (area.whole_columns()) {
        reference.shape = formula::Shape::columns;
        reference.range = area.columns() > 1;
    } else {
        reference.range = !area.single_cell();
    }
    reference.first_row = coordinate(area.first_row, absolute.row, base.row);
    reference.last_row = coordinate(area.last_row, absolute.row, base.row);
    reference.first_column = coordinate(area.first_column, absolute.column, base.column);
    reference.last_column = coordinate(area.last_column, absolute.column, base.column);
    std::string text;
    formula::append_r1c1(text, reference);
    return text;
}

}  // namespace kestrune::host
