#include <gtest/gtest.h>

#include <functional>
#include <ostream>

#include "xlsx/TestWorkbook.h"

namespace kestrune::host::test {
namespace {

using Step = std::function<void(Sheet&)>;

// A sheet's XML, what is done to the sheet, and the XML that must come of it, to the byte.
struct Golden {
    const char* name;
    const char* before;
    Step step;
    const char* after;
};
void PrintTo(const Golden& golden, std::ostream* out) { *out << golden.name; }

Step style(Area area, StyleId to) {
    return [=](Sheet& sheet) { sheet.restyle(area, [=](StyleId) { return to; }); };
}
Step content(Position at, const CellContent& what) {
    return [=](Sheet& sheet) { sheet.set_content(at, what); };
}
Step formula_text(Position at, const char* text) {
    return [=](Sheet& sheet) { sheet.set_formula(at, text); };
}
Step rows(std::int32_t first, std::int32_t last, std::function<void(RowFormat&)> change) {
    return [=](Sheet& sheet) { sheet.change_rows(first, last, change); };
}
Step columns(std::int32_t first, std::int32_t last, std::function<void(ColumnRun&)> change) {
    return [=](Sheet& sheet) { sheet.columns().change(first, last, change); };
}
constexpr Area area(std::int32_t row, std::int32_t column, std::int32_t last_row, std::int32_t last_column) {
    return {row, column, last_row, last_column};
}
constexpr Area A1 = area(1, 1, 1, 1);

class SheetGolden : public testing::TestWithParam<Golden> {};

TEST_P(SheetGolden, ChangesOnlyWhatChanged) {
    const Golden& golden = GetParam();
    const auto file = open_sheet(golden.before);
    Sheet& sheet = *file->workbook().sheets()[0];
    sheet.ensure_loaded();
    golden.step(sheet);
    EXPECT_EQ(updated(*file), worksheet(golden.after));
    // A second save starts from the same file and must not change things twice.
    EXPECT_EQ(updated(*file), worksheet(golden.after));
    // What was written reads back as what was meant.
    const auto again = open_sheet(golden.after);
    again->workbook().sheets()[0]->ensure_loaded();
}

const Golden cells[] = {
    {"StyleReplacesItsNumber", R"(<sheetData><row r='1'><c  r='A1' s='2' ><v>1</v></c></row></sheetData>)",
     style(A1, 3), R"(<sheetData><row r='1'><c  r='A1' s='3' ><v>1</v></c></row></sheetData>)"},
    {"StyleIsAddedBehindTheReference", R"(<sheetData><row r="1"><c r="A1" t="b"><v>1</v></c></row></sheetData>)",
     style(A1, 3), R"(<sheetData><row r="1"><c r="A1" s="3" t="b"><v>1</v></c></row></sheetData>)"},
    {"DefaultStyleGoesAway", R"(<sheetData><row r="1"><c r="A1" s="3"/></row></sheetData>)", style(A1, 0),
     R"(<sheetData><row r="1"><c r="A1"/></row></sheetData>)"},
    {"UnknownStyleStaysWhereNothingTookItsNumber",
     R"(<sheetData><row r="1"><c r="A1" s="99"><v>1</v></c><c r="B1"><v>1</v></c></row></sheetData>)",
     style(area(1, 2, 1, 2), 1),
     R"(<sheetData><row r="1"><c r="A1" s="99"><v>1</v></c><c r="B1" s="1"><v>1</v></c></row></sheetData>)"},
    {"ContentDropsMetadataAndKeepsOtherAttributes",
     R"(<sheetData><row r="1"><c r="A1" cm="1" ph="1" vm='2' t="s"><v>0</v></c></row></sheetData>)",
     content({1, 1}, CellContent::of(2.5)),
     R"(<sheetData><row r="1"><c r="A1" ph="1"><v>2.5</v></c></row></sheetData>)"},
    {"TextIsInlineAndEscaped", R"(<sheetData><row r="1"><c r="A1"><v>1</v></c></row></sheetData>)",
     content({1, 1}, CellContent::of(" <a> & _x0041_\r\n")),
     R"(<sheetData><row r="1"><c r="A1" t="inlineStr"><is><t xml:space="preserve"> &lt;a&gt; &amp; _x005F_x0041__x000D_)"
     "\n"
     R"(</t></is></c></row></sheetData>)"},
    {"KnownTextStaysShared", R"(<sheetData><row r="1"><c r="A1"><v>1</v></c></row></sheetData>)",
     content({1, 1}, CellContent::of("zero")),
     R"(<sheetData><row r="1"><c r="A1" t="s"><v>0</v></c></row></sheetData>)"},
    {"FormulaHasNoValue", R"(<sheetData><row r="1"><c r="A1"/></row></sheetData>)", formula_text({1, 1}, "B1<C1"),
     R"(<sheetData><row r="1"><c r="A1"><f>B1&lt;C1</f></c></row></sheetData>)"},
    {"BooleanAndErrorHaveTheirTypes", R"(<sheetData><row r="1"><c r="A1"/><c r="B1"/></row></sheetData>)",
     [](Sheet& sheet) {
         sheet.set_content({1, 1}, CellContent::of(true));
         sheet.set_content({1, 2}, CellContent::of(CellError::Div0));
     },
     R"(<sheetData><row r="1"><c r="A1" t="b"><v>1</v></c><c r="B1" t="e"><v>#DIV/0!</v></c></row></sheetData>)"},
    {"ClearingLeavesTheFormat",
     R"(<sheetData><row r="1"><c r="A1" s="1" t="str"><f>B1</f><v>x</v></c></row></sheetData>)",
     content({1, 1}, CellContent::blank()), R"(<sheetData><row r="1"><c r="A1" s="1"/></row></sheetData>)"},
    {"NumbersAreShortest", R"(<sheetData><row r="1"><c r="A1"/><c r="B1"/><c r="C1"/></row></sheetData>)",
     [](Sheet& sheet) {
         sheet.set_content({1, 1}, CellContent::of(0.1 + 0.2));
         sheet.set_content({1, 2}, CellContent::of(1e300));
         sheet.set_content({1, 3}, CellContent::of(-0.0));
     },
     R"(<sheetData><row r="1"><c r="A1"><v>0.30000000000000004</v></c><c r="B1"><v>1E+300</v></c><c r="C1"><v>0</v></c></row></sheetData>)"},
    {"OverwrittenMasterGivesItsTextToTheGroup",
     R"(<sheetData><row r="1"><c r="A1"><f t="shared" ref="A1:A3" si="0">B1+$C$1</f><v>1</v></c></row><row r="2"><c r="A2" s="1"><f t="shared" si="0"/><v>2</v></c></row><row r="3"><c r="A3" t="str"><f t="shared" si="0"/><v>x</v></c></row></sheetData>)",
     content({1, 1}, CellContent::of(7.0)),
     R"(<sheetData><row r="1"><c r="A1"><v>7</v></c></row><row r="2"><c r="A2" s="1"><f>B2+$C$1</f><v>2</v></c></row><row r="3"><c r="A3" t="str"><f>B3+$C$1</f><v>x</v></c></row></sheetData>)"},
    {"OverwrittenMemberLeavesTheGroup",
     R"(<sheetData><row r="1"><c r="A1"><f t="shared" ref="A1:A2" si="0">B1</f><v>1</v></c></row><row r="2"><c r="A2"><f t="shared" si="0"/><v>2</v></c></row></sheetData>)",
     content({2, 1}, CellContent::of(7.0)),
     R"(<sheetData><row r="1"><c r="A1"><f t="shared" ref="A1:A2" si="0">B1</f><v>1</v></c></row><row r="2"><c r="A2"><v>7</v></c></row></sheetData>)"},
    {"ArrayFormula", R"(<sheetData><row r="1"><c r="A1"><v>1</v></c></row></sheetData>)",
     [](Sheet& sheet) { sheet.set_array_formula(area(1, 1, 1, 2), "C1:D1*2"); },
     R"(<sheetData><row r="1"><c r="A1"><f t="array" ref="A1:B1">C1:D1*2</f></c></row></sheetData>)"},
    {"RestyledArrayAndDataTableKeepTheirFormulas",
     R"(<sheetData><row r="1"><c r="A1"><f t="array" ref="A1:B1" aca="1">C1:D1</f><v>1</v></c><c r="B1"><v>2</v></c><c r="C1"><f t="dataTable" ref="C1:C2" dt2D="0" r1="D9"/><v>3</v></c></row></sheetData>)",
     style(area(1, 1, 1, 3), 2),
     R"(<sheetData><row r="1"><c r="A1" s="2"><f t="array" ref="A1:B1" aca="1">C1:D1</f><v>1</v></c><c r="B1" s="2"><v>2</v></c><c r="C1" s="2"><f t="dataTable" ref="C1:C2" dt2D="0" r1="D9"/><v>3</v></c></row></sheetData>)"},
    {"StyledRichTextStays",
     R"(<sheetData><row r="1"><c r="A1" t="inlineStr"><is><r><t>a</t></r><r><t>b</t></r></is></c></row></sheetData>)",
     style(A1, 1),
     R"(<sheetData><row r="1"><c r="A1" s="1" t="inlineStr"><is><r><t>a</t></r><r><t>b</t></r></is></c></row></sheetData>)"},
    {"CommentsAndSectionsInTheWay",
     "<sheetData><!-- <c r=\"A1\"/> --><row r=\"1\"><?x <c?><c r=\"A1\"><f><![CDATA[B1<\"</c>\"]]></f><v>1</v></c>"
     "<c r=\"C1\"/></row></sheetData>",
     [](Sheet& sheet) {
         style(A1, 1)(sheet);
         sheet.set_content({1, 2}, CellContent::of(1.0));
     },
     "<sheetData><!-- <c r=\"A1\"/> --><row r=\"1\"><?x <c?><c r=\"A1\" s=\"1\"><f><![CDATA[B1<\"</c>\"]]></f><v>1</v>"
     "</c><c r=\"B1\"><v>1</v></c><c r=\"C1\"/></row></sheetData>"},
    {"OfTwoCellsAtOnePlaceTheLastStays",
     R"(<sheetData><row r="1"><c r="A1"><v>1</v></c><c r="A1"><v>2</v></c></row></sheetData>)", style(A1, 1),
     R"(<sheetData><row r="1"><c r="A1" s="1"><v>2</v></c></row></sheetData>)"},
};
INSTANTIATE_TEST_SUITE_P(Cells, SheetGolden, testing::ValuesIn(cells),
                         [](const auto& test) { return test.param.name; });

const Golden places[] = {
    {"IntoAnEmptySheet", R"(<sheetData/>)", content({2, 2}, CellContent::of(1.0)),
     R"(<sheetData><row r="2"><c r="B2"><v>1</v></c></row></sheetData>)"},
    {"IntoAnEmptyRow", R"(<sheetData><row r="1" ht="20" customHeight="1"/></sheetData>)",
     content({1, 2}, CellContent::of(1.0)),
     R"(<sheetData><row r="1" ht="20" customHeight="1"><c r="B1"><v>1</v></c></row></sheetData>)"},
    {"BetweenAndBehindCells",
     R"(<dimension ref="A1:C1"/><sheetData><row r="1" spans="1:3"><c r="A1"/><c r="C1"/></row></sheetData>)",
     [](Sheet& sheet) {
         sheet.set_content({1, 2}, CellContent::of(1.0));
         sheet.set_content({1, 5}, CellContent::of(2.0));
     },
     R"(<dimension ref="A1:E1"/><sheetData><row r="1"><c r="A1"/><c r="B1"><v>1</v></c><c r="C1"/><c r="E1"><v>2</v></c></row></sheetData>)"},
    {"BetweenAndBehindRows", R"(<sheetData><row r="2"/><row r="5"/></sheetData>)",
     [](Sheet& sheet) {
         for (const std::int32_t row : {1, 3, 4, 9}) sheet.set_content({row, 1}, CellContent::of(row * 1.0));
     },
     R"(<sheetData><row r="1"><c r="A1"><v>1</v></c></row><row r="2"/><row r="3"><c r="A3"><v>3</v></c></row><row r="4"><c r="A4"><v>4</v></c></row><row r="5"/><row r="9"><c r="A9"><v>9</v></c></row></sheetData>)"},
    {"ImpliedReferencesBecomeWrittenOnesWhereTheyWouldMove",
     R"(<sheetData><row><c r="B1"/><c><v>3</v></c></row><row><c/></row></sheetData>)",
     [](Sheet& sheet) {
         sheet.set_content({1, 1}, CellContent::of(1.0));
         sheet.set_content({1, 4}, CellContent::of(4.0));
         sheet.set_content({2, 2}, CellContent::of(5.0));
     },
     R"(<sheetData><row><c r="A1"><v>1</v></c><c r="B1"/><c><v>3</v></c><c r="D1"><v>4</v></c></row><row><c/><c r="B2"><v>5</v></c></row></sheetData>)"},
    {"ImpliedCellBehindANewOne", R"(<sheetData><row r="3"><c r="B3"/></row><row><c r="C4"/><c/></row></sheetData>)",
     [](Sheet& sheet) {
         sheet.set_content({1, 1}, CellContent::of(1.0));
         sheet.set_content({4, 1}, CellContent::of(2.0));
     },
     R"(<sheetData><row r="1"><c r="A1"><v>1</v></c></row><row r="3"><c r="B3"/></row><row><c r="A4"><v>2</v></c><c r="C4"/><c/></row></sheetData>)"},
    {"RowsOutOfOrder", R"(<sheetData><row r="3"><c r="C3"/><c r="A3"/></row><row r="1"/></sheetData>)",
     [](Sheet& sheet) {
         style(area(3, 1, 3, 1), 1)(sheet);
         sheet.set_content({2, 1}, CellContent::of(2.0));
         sheet.set_content({3, 2}, CellContent::of(3.0));
     },
     R"(<sheetData><row r="2"><c r="A2"><v>2</v></c></row><row r="3"><c r="B3"><v>3</v></c><c r="C3"/><c r="A3" s="1"/></row><row r="1"/></sheetData>)"},
    {"NoSheetData", R"(<dimension ref="A1"/><pageMargins left="1"/>)", content({1, 1}, CellContent::of(1.0)),
     R"(<dimension ref="A1"/><sheetData><row r="1"><c r="A1"><v>1</v></c></row></sheetData><pageMargins left="1"/>)"},
};
INSTANTIATE_TEST_SUITE_P(Places, SheetGolden, testing::ValuesIn(places),
                         [](const auto& test) { return test.param.name; });

const Golden lines[] = {
    {"RowAttributes",
     R"(<sheetData><row r="1" x:dyDescent="0.2" s="1" customFormat="1" ht="30" customHeight="1"/></sheetData>)",
     rows(1, 1,
          [](RowFormat& row) {
              row.has_style = false;
              row.style = 0;
              row.hidden = true;
              row.outline_level = 2;
          }),
     R"(<sheetFormatPr defaultRowHeight="15" outlineLevelRow="2"/><sheetData><row r="1" x:dyDescent="0.2" ht="30" customHeight="1" hidden="1" outlineLevel="2"/></sheetData>)"},
    {"NewRowsWithAFormat", R"(<sheetFormatPr defaultRowHeight="15"/><sheetData><row r="2"/></sheetData>)",
     rows(1, 3,
          [](RowFormat& row) {
              row.height = 21;
              row.custom_height = true;
              row.outline_level = 1;
          }),
     R"(<sheetFormatPr defaultRowHeight="15" outlineLevelRow="1"/><sheetData><row r="1" ht="21" customHeight="1" outlineLevel="1"/><row r="2" ht="21" customHeight="1" outlineLevel="1"/><row r="3" ht="21" customHeight="1" outlineLevel="1"/></sheetData>)"},
    {"ColumnsAreCutAndOthersStayToTheByte",
     R"(<cols><col  max="2" min="1" width="9.5" z="1"/><col min="4" max="6" width="12" customWidth="1"/></cols><sheetData/>)",
     columns(5, 5, [](ColumnRun& run) { run.hidden = true; }),
     R"(<cols><col  max="2" min="1" width="9.5" z="1"/><col min="4" max="4" width="12" customWidth="1"/><col min="5" max="5" width="12" hidden="1" customWidth="1"/><col min="6" max="6" width="12" customWidth="1"/></cols><sheetData/>)"},
    {"NewColumnsGetTheStandardWidth", R"(<sheetFormatPr defaultRowHeight="15"/><sheetData/>)",
     style(area(1, 3, formula::max_rows, 3), 2),
     R"(<sheetFormatPr defaultRowHeight="15"/><cols><col min="3" max="3" width="9.140625" style="2"/></cols><sheetData/>)"},
    {"MergesAreAddedAndTakenAway",
     R"(<sheetData/><mergeCells count="2"><mergeCell ref="A1:B1"/><mergeCell ref="A3:B3"/></mergeCells>)",
     [](Sheet& sheet) {
         sheet.unmerge(A1);
         sheet.merge(area(5, 1, 6, 1));
     },
     R"(<sheetData/><mergeCells count="2"><mergeCell ref="A3:B3"/><mergeCell ref="A5:A6"/></mergeCells>)"},
    {"LastMergeTakesTheListAlong",
     R"(<sheetData/><mergeCells count="1"><mergeCell ref="A1:B1"/></mergeCells><hyperlinks/>)",
     [](Sheet& sheet) { sheet.unmerge(A1); }, R"(<sheetData/><hyperlinks/>)"},
    {"FirstMergeStandsAtItsPlace", R"(<sheetData/><sheetProtection sheet="1"/><phoneticPr fontId="0"/>)",
     [](Sheet& sheet) { sheet.merge(area(1, 1, 1, 2)); },
     R"(<sheetData/><sheetProtection sheet="1"/><mergeCells count="1"><mergeCell ref="A1:B1"/></mergeCells><phoneticPr fontId="0"/>)"},
    {"ViewAttributes",
     R"(<sheetViews><sheetView tabSelected="1" workbookViewId="0"><selection activeCell="B2"/></sheetView></sheetViews><sheetData/>)",
     [](Sheet& sheet) {
         sheet.view().show_gridlines = false;
         sheet.view().zoom = 85;
         sheet.view().changed = true;
     },
     R"(<sheetViews><sheetView tabSelected="1" workbookViewId="0" showGridLines="0" zoomScale="85" zoomScaleNormal="85"><selection activeCell="B2"/></sheetView></sheetViews><sheetData/>)"},
    {"OutlineDirection", R"(<sheetPr><tabColor rgb="FF00FF00"/></sheetPr><sheetData/>)",
     [](Sheet& sheet) {
         sheet.defaults().summary_below = false;
         sheet.defaults().changed = true;
     },
     R"(<sheetPr><tabColor rgb="FF00FF00"/><outlinePr summaryBelow="0"/></sheetPr><sheetData/>)"},
};
INSTANTIATE_TEST_SUITE_P(Lines, SheetGolden, testing::ValuesIn(lines),
                         [](const auto& test) { return test.param.name; });

ConditionalFormat red_above_ten() {
    ConditionalRule rule;
    rule.type = "cellIs";
    rule.operator_name = "greaterThan";
    rule.formulas = {"10"};
    rule.priority = 3;
    rule.differential = 0;
    ConditionalFormat format;
    format.areas = {A1};
    format.rules = {rule};
    return format;
}

const Golden conditions[] = {
    {"NewFormatStandsBehindTheOthers",
     R"(<sheetData/><conditionalFormatting sqref="C1"><cfRule type="x" priority="1"/></conditionalFormatting><pageMargins/>)",
     [](Sheet& sheet) {
         sheet.conditional_formats().push_back(red_above_ten());
         sheet.conditional_formats_changed = true;
     },
     R"(<sheetData/><conditionalFormatting sqref="C1"><cfRule type="x" priority="1"/></conditionalFormatting><conditionalFormatting sqref="A1"><cfRule type="cellIs" dxfId="0" priority="3" operator="greaterThan"><formula>10</formula></cfRule></conditionalFormatting><pageMargins/>)"},
    {"CutFormatKeepsItsRules",
     R"(<sheetData/><conditionalFormatting sqref='A1:A3'><cfRule type="colorScale" priority="1"><colorScale/></cfRule></conditionalFormatting><conditionalFormatting sqref="C1"><cfRule type="x" priority="2"/></conditionalFormatting>)",
     [](Sheet& sheet) {
         sheet.delete_conditional_formats(area(2, 1, 2, 1));
         sheet.delete_conditional_formats(area(1, 3, 1, 3));
     },
     R"(<sheetData/><conditionalFormatting sqref='A1 A3'><cfRule type="colorScale" priority="1"><colorScale/></cfRule></conditionalFormatting>)"},
    {"PriorityIsWrittenIntoTheRuleItself",
     R"(<sheetData/><conditionalFormatting sqref="A1"><cfRule type="expression" priority="1" u="v"><formula>A1&gt;1</formula><extLst/></cfRule></conditionalFormatting>)",
     [](Sheet& sheet) {
         auto& rule = sheet.conditional_formats()[0].rules[0];
         rule.priority = 2;
         rule.formulas = {"A1<2"};
         sheet.conditional_formats_changed = true;
     },
     R"(<sheetData/><conditionalFormatting sqref="A1"><cfRule type="expression" priority="2" u="v"><formula>A1&lt;2</formula><extLst/></cfRule></conditionalFormatting>)"},
    {"ExtensionFormatsAreCutAndTakenAway",
     R"(<sheetData/><extLst><ext uri="a" xmlns:q="urn:x"><q:conditionalFormattings><q:conditionalFormatting><q:cfRule type="dataBar" id="1"/><xm:sqref xmlns:xm="urn:m">A1:A2</xm:sqref></q:conditionalFormatting><q:conditionalFormatting><q:cfRule type="dataBar" id="2"/><xm:sqref xmlns:xm="urn:m">C1</xm:sqref></q:conditionalFormatting></q:conditionalFormattings></ext><ext uri="b"/></extLst>)",
     [](Sheet& sheet) {
         sheet.delete_conditional_formats(A1);
         sheet.delete_conditional_formats(area(1, 3, 1, 3));
     },
     R"(<sheetData/><extLst><ext uri="a" xmlns:q="urn:x"><q:conditionalFormattings><q:conditionalFormatting><q:cfRule type="dataBar" id="1"/><xm:sqref xmlns:xm="urn:m">A2</xm:sqref></q:conditionalFormatting></q:conditionalFormattings></ext><ext uri="b"/></extLst>)"},
    {"LastExtensionFormatTakesItsExtensionAlong",
     R"(<sheetData/><extLst><ext uri="a"><q:conditionalFormattings xmlns:q="urn:x"><q:conditionalFormatting><q:cfRule type="dataBar" id="1"/><q:sqref>A1</q:sqref></q:conditionalFormatting></q:conditionalFormattings></ext><ext uri="b"/></extLst>)",
     [](Sheet& sheet) { sheet.delete_conditional_formats(A1); }, R"(<sheetData/><extLst><ext uri="b"/></extLst>)"},
};
INSTANTIATE_TEST_SUITE_P(Conditions, SheetGolden, testing::ValuesIn(conditions),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace kestrune::host::test
