#include <gmock/gmock.h>

#include "xlsx/TestWorkbook.h"

namespace kestrune::host::test {
namespace {

using formula::Edit;
using testing::ElementsAre;

constexpr std::string_view relationships =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
    R"(<Relationship Id="r1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/comments" Target="../comments1.xml"/>)"
    R"(<Relationship Id="r2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/drawing" Target="../drawings/drawing1.xml"/>)"
    R"(</Relationships>)";
constexpr std::string_view types =
    R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"><Default Extension="xml" ContentType="application/xml"/><Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/><Override PartName="/xl/comments1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.comments+xml"/><Override PartName="/xl/drawings/drawing1.xml" ContentType="application/vnd.openxmlformats-officedocument.drawing+xml"/></Types>)";
constexpr std::string_view comments =
    R"(<comments xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><authors><author>a</author></authors><commentList><comment ref="B4" authorId="0"><text><t>why</t></text></comment></commentList></comments>)";
constexpr std::string_view drawing =
    R"(<xdr:wsDr xmlns:xdr="http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing"><xdr:twoCellAnchor><xdr:from><xdr:col>1</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>5</xdr:row><xdr:rowOff>9</xdr:rowOff></xdr:from><xdr:to><xdr:col>3</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>8</xdr:row><xdr:rowOff>9</xdr:rowOff></xdr:to><xdr:sp><xdr:nvSpPr><xdr:cNvPr id="2" name="Chart 1"/></xdr:nvSpPr></xdr:sp></xdr:twoCellAnchor></xdr:wsDr>)";
constexpr std::string_view inside =
    R"(<sheetData/><dataValidations count="2"><dataValidation sqref="B2:B9 D4"/><dataValidation sqref="E7"/></dataValidations>)"
    R"(<extLst><ext uri="{CCE6A557}"><x14:dataValidations xmlns:x14="urn:x"><x14:dataValidation><xm:sqref xmlns:xm="urn:m">F3:F6</xm:sqref></x14:dataValidation></x14:dataValidations></ext></extLst>)";

TEST(LyingReading, FindsWhatLiesOnCellsAndWhereItHasGone) {
    const auto file = open_book(book_parts({{"xl/worksheets/sheet1.xml", worksheet(inside)},
                                            {"[Content_Types].xml", std::string(types)},
                                            {"xl/worksheets/_rels/sheet1.xml.rels", std::string(relationships)},
                                            {"xl/comments1.xml", std::string(comments)},
                                            {"xl/drawings/drawing1.xml", std::string(drawing)}}));
    Workbook& book = file->workbook();
    const auto expect = [&](std::int32_t by) {
        const LyingThings things = book.read_lying(0);
        EXPECT_THAT(things.comments, ElementsAre(Area{4 + by, 2, 4 + by, 2}));
        EXPECT_THAT(things.validations,
                    ElementsAre(ElementsAre(Area{2 + by, 2, 9 + by, 2}, Area{4 + by, 4, 4 + by, 4}),
                                ElementsAre(Area{7 + by, 5, 7 + by, 5}), ElementsAre(Area{3 + by, 6, 6 + by, 6})));
        ASSERT_EQ(things.drawings.size(), 1U);
        EXPECT_EQ(things.drawings[0].name, "Chart 1");
        EXPECT_EQ(things.drawings[0].cells, (Area{6 + by, 2, 9 + by, 3})) << "it ends on the border of column D";
    };
    expect(0);
    book.apply(Edit{Edit::Kind::insert_rows, "One", 1, 3});
    expect(3);
    (void)updated(*file);
    book.apply(Edit{Edit::Kind::delete_rows, "One", 1, 2});
    expect(1);
}

}  // namespace
}  // namespace kestrune::host::test
