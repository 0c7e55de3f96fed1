#include <gmock/gmock.h>

#include <random>

#include "formula/A1.h"
#include "host/model/ModelError.h"
#include "xlsx/TestWorkbook.h"

namespace kestrune::host::test {
namespace {

using formula::Edit;
using Kind = Edit::Kind;
using testing::HasSubstr;
using testing::Not;

struct Case {
    const char* inside;  // of the worksheet
    Edit edit;
    const char* after;  // stands in what is written
};

class Structure : public testing::Test {
  protected:
    static std::string after(std::string_view inside, const Edit& edit) {
        const auto file = open_sheet(inside);
        file->workbook().apply(edit);
        return updated(*file);
    }
};

TEST_F(Structure, CellsAndTheirFormulasMove) {
    const Case cases[] = {
        {R"(<sheetData><row r="1" spans="1:2"><c r="A1" cm="1"><v>1</v></c></row><row r="3" ht="20" x:y="z"><c r="A3" s="2"><f>A1+A4</f><v>7</v></c></row></sheetData>)",
         {Kind::insert_rows, "One", 2, 2},
         R"(<row r="1" spans="1:2"><c r="A1" cm="1"><v>1</v></c></row><row r="5" ht="20" x:y="z"><c r="A5" s="2"><f>A1+A6</f><v>7</v></c></row>)"},
        {R"(<sheetData><row><c><v>1</v></c><c><v>2</v></c></row><row><c><v>3</v></c></row></sheetData>)",
         {Kind::delete_rows, "One", 1, 1},
         R"(<sheetData><row r="1"><c r="A1"><v>3</v></c></row></sheetData>)"},
        {R"(<sheetData><row r="1" spans="1:3"><c r="A1"><v>1</v></c><c r="B1"><v>2</v></c><c r="C1"><f ca="1">SUM(A1:B1)</f><v>3</v></c><extra/></row></sheetData>)",
         {Kind::delete_columns, "One", 2, 1},
         R"(<row r="1"><c r="A1"><v>1</v></c><c r="B1"><f ca="1">SUM(A1:A1)</f><v>3</v></c><extra/></row>)"},
        // A group that stays one keeps being one, its text and reach moved.
        {R"(<sheetData><row r="2"><c r="A2"><f t="shared" ref="A2:A3" si="0">B2*$C$9</f></c></row><row r="3"><c r="A3"><f t="shared" si="0"/></c></row></sheetData>)",
         {Kind::insert_rows, "One", 1, 1},
         R"(<c r="A3"><f t="shared" ref="A3:A4" si="0">B3*$C$10</f></c></row><row r="4"><c r="A4"><f t="shared" si="0"/></c>)"},
        // One that falls apart becomes formulas of their own: what these meant is now at two distances.
        {R"(<sheetData><row r="2"><c r="A2"><f t="shared" ref="A2:A3" si="0">B1</f><v>5</v></c></row><row r="3"><c r="A3"><f t="shared" si="0"/><v>6</v></c></row></sheetData>)",
         {Kind::insert_rows, "One", 3, 1},
         R"(<c r="A2"><f>B1</f><v>5</v></c></row><row r="4"><c r="A4"><f>B2</f><v>6</v></c>)"},
        {R"(<sheetData><row r="2"><c r="A2"><f t="array" ref="A2:A3" aca="1">B2:B3*2</f></c></row></sheetData>)",
         {Kind::insert_columns, "One", 1, 1},
         R"(<c r="B2"><f t="array" ref="B2:B3" aca="1">C2:C3*2</f></c>)"},
        {R"(<sheetData><row r="5"><c r="B5"><f t="dataTable" ref="B5:C6" dt2D="1" dtr="1" r1="A1" r2="A2"/></c></row></sheetData>)",
         {Kind::delete_rows, "One", 2, 1},
         R"(<f t="dataTable" ref="B4:C5" dt2D="1" dtr="1" r1="A1" r2="A2" del2="1"/>)"},
        {R"(<sheetData><row r="1" ht="30" customHeight="1" s="1" customFormat="1"><c r="B1" s="2"/></row></sheetData>)",
         {Kind::insert_rows, "One", 2, 1},
         R"(<row r="2" s="1" customFormat="1" ht="30" customHeight="1"><c r="B2" s="2"/></row>)"},
    };
    for (const auto& [inside, edit, expected] : cases) EXPECT_THAT(after(inside, edit), HasSubstr(expected)) << inside;
}

TEST_F(Structure, WhatLiesOnASheetMovesWithItsCells) {
    const Edit in{Kind::insert_rows, "One", 3, 2};
    const Edit out{Kind::delete_rows, "One", 3, 2};
    const Edit left{Kind::delete_columns, "One", 1, 1};
    const Case cases[] = {
        {R"(<dimension ref="A1:C9"/><sheetData/>)", in, R"(<dimension ref="A1:C11"/>)"},
        {R"(<sheetViews><sheetView workbookViewId="0"><pane ySplit="3" topLeftCell="A4" state="frozen"/><selection sqref="B7"/></sheetView></sheetViews><sheetData/>)",
         in, R"(<pane ySplit="5" topLeftCell="A6" state="frozen"/><selection sqref="B7"/>)"},
        {R"(<cols><col min="1" max="2" width="9" customWidth="1"/><col min="4" max="4" width="5" customWidth="1"/></cols><sheetData/>)",
         left,
         R"(<cols><col min="1" max="1" width="9" customWidth="1"/><col min="3" max="3" width="5" customWidth="1"/></cols>)"},
        {R"(<sheetData/><protectedRanges><protectedRange sqref="A3:A4" name="a"/><protectedRange sqref="A3:A5 B9" name="b"/></protectedRanges>)",
         out, R"(<protectedRanges><protectedRange sqref="A3 B7" name="b"/></protectedRanges>)"},
        {R"(<sheetData/><scenarios><scenario name="s"><inputCells r="B5" val="1"/></scenario></scenarios>)", in,
         R"(<inputCells r="B7" val="1"/>)"},
        {R"(<sheetData/><autoFilter ref="A2:D9"><filterColumn colId="2"/></autoFilter>)", left,
         R"(<autoFilter ref="A2:C9"><filterColumn colId="1"/></autoFilter>)"},
        {R"(<sheetData/><mergeCells count="2"><mergeCell ref="A2:B4"/><mergeCell ref="C8:D8"/></mergeCells>)", in,
         R"(<mergeCells count="2"><mergeCell ref="A2:B6"/><mergeCell ref="C10:D10"/></mergeCells>)"},
        {R"(<sheetData/><conditionalFormatting sqref="A3:A9 C1"><cfRule type="expression" priority="1" x="y"><formula>$B3&gt;D$9</formula></cfRule></conditionalFormatting>)",
         in, R"(sqref="A5:A11 C1"><cfRule type="expression" priority="1" x="y"><formula>$B3&gt;D$11</formula>)"},
        {R"(<sheetData/><conditionalFormatting sqref="A3:A4"><cfRule type="duplicateValues" priority="1"/></conditionalFormatting><pageMargins left="1"/>)",
         out, R"(<sheetData/><pageMargins left="1"/>)"},
        {R"(<sheetData/><conditionalFormatting sqref="A3:A9"><cfRule type="colorScale" priority="1"><colorScale><cfvo type="formula" val="$B$9"/></colorScale></cfRule></conditionalFormatting>)",
         out, R"(sqref="A3:A7"><cfRule type="colorScale" priority="1"><colorScale><cfvo type="formula" val="$B$7"/>)"},
        {R"(<sheetData/><dataValidations count="2"><dataValidation type="list" sqref="B3:B4"><formula1>$F$1:$F$9</formula1></dataValidation><dataValidation type="custom" sqref="C3:C9"><formula1>C3&gt;One!$F$9</formula1></dataValidation></dataValidations>)",
         out,
         R"(<dataValidations count="1"><dataValidation type="custom" sqref="C3:C7"><formula1>C3&gt;One!$F$7</formula1>)"},
        {R"(<sheetData/><hyperlinks><hyperlink ref="A9" location="One!A9"/></hyperlinks>)", in,
         R"(<hyperlink ref="A11" location="One!A9"/>)"},
        {R"(<sheetData/><rowBreaks count="2" manualBreakCount="2"><brk id="2" man="1"/><brk id="7" man="1"/></rowBreaks><colBreaks><brk id="4"/></colBreaks>)",
         out,
         R"(<rowBreaks count="1" manualBreakCount="1"><brk id="5" man="1"/></rowBreaks><colBreaks><brk id="4"/></colBreaks>)"},
        {R"(<sheetData/><ignoredErrors><ignoredError sqref="B2:B9" numberStoredAsText="1"/></ignoredErrors>)", out,
         R"(sqref="B2:B7")"},
        {R"(<sheetData/><controls><control><controlPr linkedCell="$B$9" listFillRange="One!$A$1:$A$9"><anchor moveWithCells="1"><from><row>8</row></from><to><row>10</row></to></anchor></controlPr></control></controls>)",
         in,
         R"(linkedCell="$B$11" listFillRange="One!$A$1:$A$11"><anchor moveWithCells="1"><from><row>10</row></from><to><row>12</row></to>)"},
        {R"(<sheetData/><extLst><ext uri="{05C60535-1F16-4fd2-B633-F4F36F0B64E0}"><x14:sparklineGroups xmlns:x14="u" xmlns:xm="v"><x14:sparklineGroup><x14:sparklines><x14:sparkline><xm:f>One!A1:A9</xm:f><xm:sqref>B3</xm:sqref></x14:sparkline><x14:sparkline><xm:f>One!A5:A9</xm:f><xm:sqref>B9</xm:sqref></x14:sparkline></x14:sparklines></x14:sparklineGroup></x14:sparklineGroups></ext></extLst>)",
         out,
         R"(<x14:sparklines><x14:sparkline><xm:f>One!A3:A7</xm:f><xm:sqref>B7</xm:sqref></x14:sparkline></x14:sparklines>)"},
    };
    for (const auto& [inside, edit, expected] : cases) EXPECT_THAT(after(inside, edit), HasSubstr(expected)) << inside;
}

constexpr std::string_view relationships = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

struct Part {
    const char* name;  // of xl/
    const char* type;  // of its content
    const char* kind;  // of its relationship
    const char* content;
};

std::unique_ptr<WorkbookFile> open_with(const Part& part, std::string_view inside = "<sheetData/>") {
    auto parts = book_parts(
        {{std::string(SheetPart), worksheet(inside)},
         {"xl/" + std::string(part.name), part.content},
         {"xl/worksheets/_rels/sheet1.xml.rels",
          R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type=")" +
              std::string(relationships) + part.kind + R"(" Target="../)" + part.name + R"("/></Relationships>)"}});
    std::string& types = parts.front().content;
    types.insert(types.find("</Types>"),
                 R"(<Override PartName="/xl/)" + std::string(part.name) + R"(" ContentType=")" + part.type + R"("/>)");
    return open_book(parts);
}

constexpr const char* drawing_type = "application/vnd.openxmlformats-officedocument.drawing+xml";
constexpr const char* table_type = "application/vnd.openxmlformats-officedocument.spreadsheetml.table+xml";
constexpr const char* pivot_type = "application/vnd.openxmlformats-officedocument.spreadsheetml.pivotTable+xml";

TEST_F(Structure, PartsBesideTheSheetFollow) {
    struct PartCase {
        Part part;
        Edit edit;
        const char* after;
    };
    const Edit in{Kind::insert_rows, "One", 3, 2};
    const PartCase cases[] = {
        {{"drawings/drawing1.xml", drawing_type, "drawing",
          R"(<d><twoCellAnchor><from><row>1</row><rowOff>0</rowOff></from><to><row>4</row><rowOff>9</rowOff></to><sp textlink="One!$A$9"/></twoCellAnchor></d>)"},
         in,
         R"(<from><row>1</row><rowOff>0</rowOff></from><to><row>6</row><rowOff>9</rowOff></to><sp textlink="One!$A$11"/>)"},
        {{"drawings/drawing1.xml", drawing_type, "drawing",
          R"(<d><twoCellAnchor editAs="oneCell"><from><row>1</row><rowOff>0</rowOff></from><to><row>4</row><rowOff>9</rowOff></to></twoCellAnchor></d>)"},
         in,
         R"(<from><row>1</row><rowOff>0</rowOff></from><to><row>4</row><rowOff>9</rowOff></to>)"},
        {{"drawings/drawing1.xml", drawing_type, "drawing",
          R"(<d><twoCellAnchor editAs="absolute"><from><row>5</row><rowOff>7</rowOff></from><to><row>6</row><rowOff>0</rowOff></to></twoCellAnchor><oneCellAnchor><from><row>5</row><rowOff>7</rowOff></from></oneCellAnchor></d>)"},
         in,
         R"(<from><row>5</row><rowOff>7</rowOff></from><to><row>6</row><rowOff>0</rowOff></to></twoCellAnchor><oneCellAnchor><from><row>7</row><rowOff>7</rowOff></from>)"},
        {{"charts/chart1.xml", "application/vnd.openxmlformats-officedocument.drawingml.chart+xml", "chart",
          R"(<c><f>One!$A$1:$A$5</f><f>(Two!$A$5,'One'!$B$5)</f></c>)"},
         in,
         R"(<f>One!$A$1:$A$7</f><f>(Two!$A$5,'One'!$B$7)</f>)"},
        {{"comments1.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.comments+xml", "comments",
          R"(<comments><commentList><comment ref="A1"/><comment ref="B3"/></commentList></comments>)"},
         {Kind::delete_rows, "One", 1, 1},
         R"(<commentList><comment ref="B2"/></commentList>)"},
        {{"drawings/vmlDrawing1.vml", "application/vnd.openxmlformats-officedocument.vmlDrawing", "vmlDrawing",
          R"(<xml><shape><ClientData ObjectType="Note"><Anchor>1, 15, 3, 2, 3, 15, 7, 4</Anchor><Row>3</Row><Column>0</Column></ClientData></shape></xml>)"},
         in,
         R"(<Anchor>1, 15, 5, 2, 3, 15, 9, 4</Anchor><Row>5</Row><Column>0</Column>)"},
        {{"tables/table1.xml", table_type, "table",
          R"(<table displayName="T" ref="A2:B5" totalsRowCount="1"><autoFilter ref="A2:B4"/><tableColumns count="2"><tableColumn id="1" name="a"/><tableColumn id="4" name="Column1"/></tableColumns></table>)"},
         in,
         R"(ref="A2:B7" totalsRowCount="1"><autoFilter ref="A2:B6"/>)"},
        // Rows that come in before the totals are data.
        {{"tables/table1.xml", table_type, "table",
          R"(<table displayName="T" ref="A2:B5" totalsRowCount="1"><autoFilter ref="A2:B4"/><tableColumns count="2"><tableColumn id="1" name="a"/><tableColumn id="4" name="Column1"/></tableColumns></table>)"},
         {Kind::insert_rows, "One", 5, 1},
         R"(ref="A2:B6" totalsRowCount="1"><autoFilter ref="A2:B5"/>)"},
        {{"tables/table1.xml", table_type, "table",
          R"(<table displayName="T" ref="A2:B5"><tableColumns count="2"><tableColumn id="1" name="a"/><tableColumn id="4" name="Column1"/></tableColumns></table>)"},
         {Kind::insert_columns, "One", 2, 1},
         R"(ref="A2:C5"><tableColumns count="3"><tableColumn id="1" name="a"/><tableColumn id="5" name="Column2"/><tableColumn id="4" name="Column1"/>)"},
        {{"pivotTables/p1.xml", pivot_type, "pivotTable",
          R"(<pivotTableDefinition name="P"><location ref="A5:C9" rowPageCount="1"/></pivotTableDefinition>)"},
         in,
         R"(<location ref="A7:C11" rowPageCount="1"/>)"},
        {{"pivotCache/c1.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.pivotCacheDefinition+xml",
          "package", R"(<p><cacheSource><worksheetSource ref="A1:C9" sheet="One"/></cacheSource></p>)"},
         in,
         R"(<worksheetSource ref="A1:C11" sheet="One"/>)"},
        {{"ctrlProps/ctrlProp1.xml", "application/vnd.ms-excel.controlproperties+xml", "ctrlProp",
          R"(<formControlPr fmlaLink="$B$9"/>)"},
         in,
         R"(fmlaLink="$B$11")"},
    };
    for (const auto& [part, edit, expected] : cases) {
        const auto file = open_with(part);
        file->workbook().apply(edit);
        EXPECT_THAT(updated(*file, "xl/" + std::string(part.name)), HasSubstr(expected));
    }
}

TEST_F(Structure, WhatCannotFollowIsRefusedBeforeAnythingChanges) {
    struct Refusal {
        Part part;
        const char* inside;
        Edit edit;
        const char* why;
    };
    const Part nothing{"printerSettings/p1.bin", "application/octet-stream", "printerSettings", "x"};
    const Edit in{Kind::insert_rows, "One", 3, 2};
    const Edit out{Kind::delete_rows, "One", 3, 1};
    const Refusal cases[] = {
        {nothing, "<sheetData/><novelty/>", in, "<novelty> is not known here"},
        {nothing, R"(<sheetData/><extLst><ext uri="{X}"><thing sqref="A1"/></ext></extLst>)", in, "the extension {X}"},
        {{"odd/odd1.xml", "application/xml", "oddity", "<o/>"}, "<sheetData/>", in, "oddity"},
        {{"revisions/r1.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.revisionHeaders+xml",
          "package", "<r/>"},
         "<sheetData/>",
         in,
         "revisionHeaders"},
        {{"pivotTables/p1.xml", pivot_type, "pivotTable", R"(<p name="P"><location ref="A2:C9"/></p>)"},
         "<sheetData/>",
         in,
         "pivot table 'P'"},
        {{"tables/t1.xml", table_type, "table", R"(<table displayName="T" ref="A3:B5"/>)"},
         "<sheetData/>",
         out,
         "headers of the table 'T'"},
        {{"tables/t1.xml", table_type, "table", R"(<table displayName="T" ref="A2:B3"/>)"},
         "<sheetData/>",
         out,
         "without a row of data"},
        {nothing, R"(<sheetData><row r="2"><c r="A2"><f t="array" ref="A2:A3">B2:B3</f></c></row></sheetData>)", in,
         "part of an array"},
        {nothing, R"(<sheetData><row r="1048576"><c r="A1048576"><v>1</v></c></row></sheetData>)", in,
         "off the end of the sheet 'One'"},
    };
    for (const auto& [part, inside, edit, why] : cases) {
        const auto file = open_with(part, inside);
        try {
            file->workbook().apply(edit);
            ADD_FAILURE() << why;
        } catch (const ModelError& error) {
            EXPECT_THAT(error.what(), HasSubstr(why));
        }
        file->update();
        EXPECT_FALSE(file->package().changed()) << why;
    }
}

// Inserting and deleting the same rows leaves a file whose sheet reads as before, saved in between or not.
TEST_F(Structure, DeletingWhatWasInsertedGivesTheSheetBack) {
    std::mt19937 random(7);
    const auto pick = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    for (int round = 0; round < 25; ++round) {
        std::string data = "<sheetData>";
        for (int row = 1; row <= 8; ++row) {
            data += "<row r=\"" + std::to_string(row) + "\">";
            for (int column = 1; column <= 6; ++column) {
                if (pick(0, 2) == 0) continue;
                const std::string place = formula::cell_text({row, column});
                const std::string other =
                    formula::cell_text({pick(1, 9), pick(1, 9)}, {pick(0, 1) == 1, pick(0, 1) == 1});
                const std::string last = formula::cell_text({pick(1, 9), pick(1, 9)});
                data += "<c r=\"" + place + "\" s=\"" + std::to_string(pick(0, 4)) + "\"><f>" + other + "+SUM(" +
                        other + ":" + last + ")</f><v>1</v></c>";
            }
            data += "</row>";
        }
        data += "</sheetData><mergeCells count=\"1\"><mergeCell ref=\"A2:B4\"/></mergeCells>";
        const auto before = open_sheet(data);
        const auto file = open_sheet(data);
        Sheet& sheet = *file->workbook().sheets()[0];
        Sheet& original = *before->workbook().sheets()[0];
        const bool rows = pick(0, 1) == 1;
        const Edit in{rows ? Kind::insert_rows : Kind::insert_columns, "One", pick(1, 9), pick(1, 3)};
        Edit out = in;
        out.kind = rows ? Kind::delete_rows : Kind::delete_columns;
        file->workbook().apply(in);
        if (pick(0, 1) == 1) file->update();
        file->workbook().apply(out);
        const std::string written = updated(*file);
        const auto again = open_book(book_parts({{std::string(SheetPart), written}}));
        Sheet& reread = *again->workbook().sheets()[0];
        for (int row = 1; row <= 9; ++row) {
            for (int column = 1; column <= 9; ++column) {
                const Position at{row, column};
                // A corner may change places with the other one; the cells are the same.
                const auto cells = [&](Sheet& one) {
                    return formula::adjust_for_edit(one.formula_at(at), "One", {Kind::insert_rows, "One", 1, 1});
                };
                ASSERT_EQ(cells(sheet), cells(original)) << formula::cell_text(at);
                ASSERT_EQ(cells(reread), cells(original)) << formula::cell_text(at);
                ASSERT_EQ(reread.style_at(at), original.style_at(at));
                ASSERT_EQ(reread.content_at(at).number, original.content_at(at).number);
            }
        }
        ASSERT_EQ(reread.merges(), original.merges());
    }
}

}  // namespace
}  // namespace kestrune::host::test
