#pragma once

#include <string>

#include "host/model/Workbook.h"

namespace kestrune::host {

// The top-left corner of a sheet, a line a row: the number of each position's format, with "*" where a cell is stored
// and "-" before a row that has a format of its own.
inline std::string picture(Sheet& sheet, std::int32_t rows, std::int32_t columns) {
    std::string out;
    for (std::int32_t row = 1; row <= rows; ++row) {
        const RowFormat* format = sheet.row_format(row);
        out += format && format->has_style ? '-' : ' ';
        for (std::int32_t column = 1; column <= columns; ++column) {
            out += std::to_string(sheet.style_at({row, column}));
            out += sheet.find({row, column}) ? '*' : ' ';
        }
        out += '\n';
    }
    return out;
}

// Ten formats that differ, numbers 0 to 9.
inline void add_styles(Workbook& workbook) {
    for (std::int32_t indent = 1; indent < 10; ++indent) {
        CellFormat format;
        format.alignment.indent = indent;
        workbook.styles.formats.append(format);
    }
}

}  // namespace kestrune::host
