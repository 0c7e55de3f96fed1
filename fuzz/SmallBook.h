#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fuzz/targets.h"
#include "host/xlsx/WorkbookFile.h"

namespace kestrune::fuzz {

inline constexpr std::string_view sheet_part = "xl/worksheets/sheet1.xml";
inline constexpr std::string_view styles_part = "xl/styles.xml";

using Parts = std::vector<std::pair<std::string_view, std::string>>;

// A package of one sheet "One", styles and shared strings; the parts given stand in the place of those.
[[nodiscard]] host::Package small_package(const Parts& others);

// Opens a workbook and reads all of it. Null when it is refused, which must take one line that names the file.
[[nodiscard]] std::unique_ptr<host::WorkbookFile> opened(host::Package package);

// Changes contents and formats of a workbook's first sheet, writes the parts, and reads them again: what the two show
// must be the same.
void check_writing(host::WorkbookFile& file);

}  // namespace kestrune::fuzz
