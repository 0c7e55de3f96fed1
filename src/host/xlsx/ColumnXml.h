#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host/model/RowsAndColumns.h"
#include "host/xlsx/XmlElement.h"

namespace kestrune::host {

// A <col> as a run of columns (ECMA-376 18.3.1.13); nothing when its bounds are outside the sheet. Cell formats from
// `formats` on do not exist and mean the first.
[[nodiscard]] std::optional<ColumnRun> read_column_run(const XmlElement& col, std::uint32_t formats);

// The element again. Excel wants a width: `standard_width` stands in for a run that has none of its own.
void append_column_run(std::string& out, std::string_view prefix, const ColumnRun& run, double standard_width);

}  // namespace kestrune::host
