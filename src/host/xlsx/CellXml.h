#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/model/Cell.h"
#include "host/model/Sheet.h"

namespace kestrune::host {

// Values of cells as a sheet's XML spells them (ECMA-376 18.18.11).

[[nodiscard]] std::string_view error_text(CellError error);                 // "#DIV/0!"
[[nodiscard]] std::optional<CellError> parse_error(std::string_view text);  // in any case

// A number's shortest text that reads back as the same number, "1E+20" as Excel spells exponents.
void append_number(std::string& out, double number);

// The serial number of an ISO 8601 date, time or both ("2024-02-29T12:00:00"), which strict files may store. Time
// zones are taken off as they stand. Nothing for other text.
[[nodiscard]] std::optional<double> parse_iso_date(std::string_view text, bool date1904);

// A cell's type attribute (empty for numbers and blanks) and the elements inside it, under the sheet's own prefix.
struct CellXml {
    std::string_view type;
    std::string content;
};
[[nodiscard]] CellXml cell_xml(Sheet& sheet, Position at, const Cell& cell, std::string_view prefix);

}  // namespace kestrune::host
