#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/xlsx/WorkbookFile.h"
#include "xlsx/package/TestPackages.h"

namespace kestrune::host::test {

inline constexpr std::string_view SheetPart = "xl/worksheets/sheet1.xml";

/// A workbook of one sheet with five cell formats (0 to 4), three shared strings and a calculation chain; the parts
/// given replace those, or come on top.
std::vector<TestPart> book_parts(const std::vector<TestPart>& others = {});
std::unique_ptr<WorkbookFile> open_book(const std::vector<TestPart>& parts);

/// The inside of a worksheet in the usual namespace, and back again.
std::string worksheet(std::string_view inside);
std::unique_ptr<WorkbookFile> open_sheet(std::string_view inside);
std::string updated(WorkbookFile& file, std::string_view part = SheetPart);

}  // namespace kestrune::host::test
