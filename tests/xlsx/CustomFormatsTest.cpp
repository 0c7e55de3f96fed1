#include "host/model/CustomFormats.h"

#include <gmock/gmock.h>

#include "xlsx/TestWorkbook.h"

namespace kestrune::host::test {
namespace {

// Formats 170 to 179 in use by a cell, a row, a column, a named style, a conditional format, a chart (twice over), a
// pivot table, a cell format that nothing has, and nobody; 180 has the cell's code once more.
std::unique_ptr<WorkbookFile> open_formats() {
    std::string formats;
    int number = 170;
    for (const char* code :
         {"cell", "row", "column", "style", "rule", "chart", "chart2", "pivot", "unused", "nobody"}) {
        formats += "<numFmt numFmtId=\"" + std::to_string(number++) + "\" formatCode=\"0&quot;" + code + "&quot;\"/>";
    }
    formats += R"(<numFmt numFmtId="180" formatCode="0&quot;cell&quot;"/>)";
    const std::string styles =
        R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><numFmts count="11">)" +
        formats +
        R"(</numFmts><fonts count="1"><font/></fonts><fills count="2"><fill/><fill/></fills><borders count="1"><border/></borders><cellStyleXfs count="2"><xf numFmtId="0"/><xf numFmtId="173"/></cellStyleXfs><cellXfs count="5"><xf/><xf numFmtId="170"/><xf numFmtId="171"/><xf numFmtId="172"/><xf numFmtId="178" applyNumberFormat="1"/></cellXfs><cellStyles count="2"><cellStyle name="Normal" xfId="0" builtinId="0"/><cellStyle name="Mine" xfId="1"/></cellStyles><dxfs count="1"><dxf><numFmt numFmtId="174" formatCode="0&quot;rule&quot;"/></dxf></dxfs></styleSheet>)";
    const std::string types =
        R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"><Default Extension="xml" ContentType="application/xml"/><Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/><Override PartName="/xl/charts/chart1.xml" ContentType="application/vnd.openxmlformats-officedocument.drawingml.chart+xml"/><Override PartName="/xl/pivotTables/p.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.pivotTable+xml"/></Types>)";
    return open_book(book_parts(
        {{"[Content_Types].xml", types},
         {"xl/styles.xml", styles},
         {"xl/charts/chart1.xml",
          R"(<c:chartSpace xmlns:c="c"><c:numFmt formatCode="0&quot;chart&quot;"/><c:formatCode>0"chart2"</c:formatCode></c:chartSpace>)"},
         {"xl/pivotTables/p.xml", R"(<pivotTableDefinition><dataField numFmtId="177"/></pivotTableDefinition>)"},
         {std::string(SheetPart),
          worksheet(
              R"(<cols><col min="5" max="6" width="9" style="3"/></cols><sheetData><row r="1"><c r="A1" s="1"><v>5</v></c></row><row r="9" s="2" customFormat="1"/></sheetData>)")}}));
}

std::vector<std::string> unused(Workbook& book) {
    std::vector<std::string> codes;
    for (const CustomNumberFormat& format : custom_number_formats(book)) {
        if (!format.in_use) codes.push_back(format.code);
    }
    return codes;
}

TEST(CustomFormats, InUseByCellsRowsColumnsStylesRulesChartsAndPivots) {
    const auto file = open_formats();
    EXPECT_EQ(custom_number_formats(file->workbook()).size(), 10U) << "each code once";
    EXPECT_EQ(unused(file->workbook()), (std::vector<std::string>{"0\"unused\"", "0\"nobody\""}));
}

TEST(CustomFormats, DeletedOnesLeaveTheFile) {
    const auto file = open_formats();
    Workbook& book = file->workbook();
    EXPECT_FALSE(delete_number_format(book, "0.00")) << "Excel's own";
    EXPECT_FALSE(delete_number_format(book, "0\"never seen\""));
    for (const std::string& code : unused(book)) EXPECT_TRUE(delete_number_format(book, code));
    EXPECT_EQ(unused(book), std::vector<std::string>());
    const std::string sheet = file->package().read(SheetPart);
    std::string styles = updated(*file, "xl/styles.xml");
    EXPECT_THAT(styles, testing::HasSubstr(R"(<numFmts count="9">)"));
    EXPECT_THAT(styles, testing::HasSubstr(R"(<xf numFmtId="0" applyNumberFormat="1"/></cellXfs>)"));
    EXPECT_THAT(styles, testing::Not(testing::HasSubstr("nobody")));
    EXPECT_EQ(file->package().read(SheetPart), sheet) << "no cell changed";

    // A new format does not get the number of a deleted one.
    book.sheets()[0]->restyle(Area::cell({2, 2}), [&](StyleId id) {
        const auto number = book.styles.intern_number_format("0\"new\"");
        return book.styles.with_format(id, [&](CellFormat& format) { format.number_format = number; });
    });
    styles = updated(*file, "xl/styles.xml");
    EXPECT_THAT(styles, testing::HasSubstr(R"(<numFmts count="10">)"));
    EXPECT_THAT(styles, testing::HasSubstr(R"(<numFmt numFmtId="164" formatCode="0&quot;new&quot;"/></numFmts>)"));
}

TEST(CustomFormats, WhatShowsInADeletedOneIsGeneral) {
    const auto file = open_formats();
    Workbook& book = file->workbook();
    EXPECT_TRUE(delete_number_format(book, "0\"cell\""));
    Sheet& sheet = *book.sheets()[0];
    EXPECT_EQ(book.styles.number_format(book.styles.formats[sheet.style_at({1, 1})].number_format), "General");
    EXPECT_NE(book.styles.number_format(book.styles.formats[sheet.style_at({9, 1})].number_format), "General");
    const std::string styles = updated(*file, "xl/styles.xml");
    EXPECT_THAT(styles, testing::Not(testing::HasSubstr("cell&quot;"))) << "both numbers of the code";
    EXPECT_THAT(file->package().read(SheetPart), testing::Not(testing::HasSubstr(R"(s="1")")));
}

}  // namespace
}  // namespace kestrune::host::test
