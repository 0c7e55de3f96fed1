#include "fuzz/SmallBook.h"

namespace kestrune::fuzz {

// The same for a styles part: cells of its first five formats are changed.
void styles(std::string_view text) {
    constexpr std::string_view cells =
        R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><cols><col min="2" max="2" width="9" style="2"/></cols><sheetData><row r="2" s="3" customFormat="1"><c r="A2" s="1"><v>1</v></c><c r="C2" s="4" t="s"><v>1</v></c></row></sheetData><conditionalFormatting sqref="A1:C3"><cfRule type="cellIs" dxfId="0" priority="1" operator="equal"><formula>1</formula></cfRule></conditionalFormatting></worksheet>)";
    const auto file = opened(small_package({{sheet_part, std::string(cells)}, {styles_part, std::string(text)}}));
    if (!file) return;
    file->update();
    expect(file->package().read(styles_part) == text, "styles that nobody changes stay as they are", text);
    check_writing(*file);
}

}  // namespace kestrune::fuzz
