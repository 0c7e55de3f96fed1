#include "host/xlsx/TablesReading.h"

#include <gtest/gtest.h>

#include "xlsx/TestWorkbook.h"

namespace kestrune::host::test {
namespace {

constexpr std::string_view Relationships =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)";
constexpr std::string_view Office = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

std::string relationship(std::string_view id, std::string_view kind, std::string_view target, bool external = false) {
    std::string text = "<Relationship Id=\"";
    text.append(id).append("\" Type=\"").append(Office).append(kind).append("\" Target=\"").append(target).append("\"");
    return text + (external ? " TargetMode=\"External\"/>" : "/>");
}

std::string table(std::string_view attributes) {
    return R"(<table xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )" + std::string(attributes) +
           R"(><tableColumns count="2"><tableColumn id="1" name="A &amp; B"/><tableColumn id="2" name="C"/></tableColumns></table>)";
}

TEST(TablesReading, FindsTheTablesOfEachSheet) {
    const auto file = open_book(
        book_parts({{"xl/worksheets/_rels/sheet1.xml.rels",
                     std::string(Relationships) + relationship("r1", "table", "../tables/table1.xml") +
                         relationship("r2", "table", "../tables/table2.xml") +
                         relationship("r3", "table", "../tables/gone.xml") + "</Relationships>"},
                    {"xl/tables/table1.xml", table(R"(displayName="Sales" ref="B3:C9" totalsRowCount="1")")},
                    {"xl/tables/table2.xml", table(R"(displayName="Bare" ref="E1:F4" headerRowCount="0")")}}));
    const auto& tables = file->workbook().tables();
    ASSERT_EQ(tables.size(), 2U);
    EXPECT_EQ(tables[0].name, "Sales");
    EXPECT_EQ(tables[0].all, (Area{3, 2, 9, 3}));
    EXPECT_TRUE(tables[0].headers && tables[0].totals);
    EXPECT_EQ(tables[0].columns, (std::vector<std::string>{"A & B", "C"}));
    EXPECT_FALSE(tables[1].headers || tables[1].totals);
}

TEST(TablesReading, RefusesATableThatIsNone) {
    const auto file = open_book(book_parts(
        {{"xl/worksheets/_rels/sheet1.xml.rels",
          std::string(Relationships) + relationship("r1", "table", "../tables/table1.xml") + "</Relationships>"},
         {"xl/tables/table1.xml", "<table"}}));
    EXPECT_THROW((void)file->workbook().tables(), PackageError);
}

TEST(TablesReading, LinksLeadToFilesInTheOrderOfTheirNumbers) {
    const auto link = [](std::string_view target) {
        return std::string(Relationships) + relationship("r1", "externalLinkPath", target, true) + "</Relationships>";
    };
    std::string main(
        R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"><sheets><sheet name="One" sheetId="1" r:id="rId1"/></sheets><externalReferences><externalReference r:id="x2"/><externalReference r:id="x1"/><externalReference r:id="x9"/></externalReferences></workbook>)");
    const auto file =
        open_book(book_parts({{"xl/workbook.xml", main},
                              {"xl/_rels/workbook.xml.rels",
                               std::string(Relationships) + relationship("rId1", "worksheet", "worksheets/sheet1.xml") +
                                   relationship("x1", "externalLink", "externalLinks/a.xml") +
                                   relationship("x2", "externalLink", "externalLinks/b.xml") + "</Relationships>"},
                              {"xl/externalLinks/a.xml", "<externalLink/>"},
                              {"xl/externalLinks/b.xml", "<externalLink/>"},
                              {"xl/externalLinks/_rels/a.xml.rels", link("file:///C:\\plans\\Plan.xlsx")},
                              {"xl/externalLinks/_rels/b.xml.rels", link("Beside.xlsx")}}));
    file->workbook().path = "/models";
    EXPECT_EQ(file->workbook().read_external_links(),
              (std::vector<std::string>{"/models/Beside.xlsx", "C:\\plans\\Plan.xlsx", ""}));
}

}  // namespace
}  // namespace kestrune::host::test
