#include <gmock/gmock.h>

#include "xlsx/TestWorkbook.h"

namespace kestrune::host::test {
namespace {

TEST(Hyperlinks, AreReadAndStayAsTheyStand) {
    const std::string sheet = worksheet(
        R"(<sheetData><row r="1"><c r="A1"><v>1</v></c></row></sheetData>)"
        R"(<hyperlinks xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
        R"(<hyperlink ref="A1" r:id="rId7" tooltip="Go &amp; see"/><hyperlink ref="B2:C3" location="Data!A1" display="x"/>)"
        R"(<hyperlink ref="D4" r:id="rId8" location="Here!B2"/><hyperlink ref="nowhere" r:id="rId7"/>)"
        R"(<hyperlink ref="E5" r:id="gone"/></hyperlinks>)");
    constexpr std::string_view links =
        R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
        R"(<Relationship Id="rId7" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/hyperlink" )"
        R"(Target="https://example.com/p#part" TargetMode="External"/>)"
        R"(<Relationship Id="rId8" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/hyperlink" )"
        R"(Target="other.xlsx" TargetMode="External"/></Relationships>)";
    const auto file = open_book(
        book_parts({{std::string(SheetPart), sheet}, {"xl/worksheets/_rels/sheet1.xml.rels", std::string(links)}}));
    Sheet& first = *file->workbook().sheets()[0];
    std::string found;
    for (const Hyperlink& link : first.hyperlinks()) {
        found += std::to_string(link.area.first_row) + "-" + std::to_string(link.area.last_row) + " " + link.address +
                 "|" + link.sub_address + "|" + link.screen_tip + "|" + link.text + "\n";
    }
    EXPECT_EQ(found,
              "1-1 https://example.com/p|part|Go & see|\n"
              "2-3 |Data!A1||x\n"
              "4-4 other.xlsx|Here!B2||\n"
              "5-5 |||\n");
    first.set_content({1, 1}, CellContent::of(2.0));
    const std::string written = updated(*file);
    const auto tail = [](const std::string& text) { return text.substr(text.find("<hyperlinks")); };
    EXPECT_EQ(tail(written), tail(sheet));
}

}  // namespace
}  // namespace kestrune::host::test
