#include "host/xlsx/WorkbookFile.h"

#include <gtest/gtest.h>

#include "xlsx/TestWorkbook.h"

namespace kestrune::host::test {
namespace {

std::string utf16(std::string_view ascii) {
    std::string bytes("\xFF\xFE");
    for (const char c : ascii) bytes.append({c, '\0'});
    return bytes;
}

TEST(WorkbookFile, ReadsEveryKindOfValue) {
    const auto file = open_sheet(
        R"(<sheetData><row r="1"><c r="A1"><v> 1.5 </v></c><c t="s"><v>1</v></c><c t="s"><v>2</v></c><c t="s"><v>77</v></c><c t="str"><f>X</f><v>a_x000A_b</v></c><c t="b"><v>true</v></c><c t="e"><v>#n/a</v></c><c t="inlineStr"><is><t>in</t><rPh sb="0" eb="1"><t>no</t></rPh></is></c><c t="d"><v>2024-02-29T12:00:00Z</v></c><c t="n"/></row></sheetData>)");
    Sheet& sheet = *file->workbook().sheets()[0];
    EXPECT_EQ(sheet.content_at({1, 1}).number, 1.5);
    EXPECT_EQ(sheet.content_at({1, 2}).text, "rich text");
    EXPECT_EQ(sheet.content_at({1, 3}).text, "a\rb_c");
    EXPECT_EQ(sheet.content_at({1, 4}).kind, CellKind::String);
    EXPECT_EQ(sheet.content_at({1, 4}).text, "");
    EXPECT_EQ(sheet.content_at({1, 5}).text, "a\nb");
    EXPECT_EQ(sheet.formula_at({1, 5}), "X");
    EXPECT_TRUE(sheet.content_at({1, 6}).boolean);
    EXPECT_EQ(sheet.content_at({1, 7}).error, CellError::NA);
    EXPECT_EQ(sheet.content_at({1, 8}).text, "in");
    EXPECT_EQ(sheet.content_at({1, 9}).number, 45351.5);
    EXPECT_EQ(sheet.content_at({1, 10}).kind, CellKind::Blank);
}

TEST(WorkbookFile, ReadsWhatTheSheetSaysBesidesItsCells) {
    const auto file = open_sheet(
        R"(<sheetPr><tabColor theme="4" tint="-0.25"/><outlinePr summaryBelow="0"/></sheetPr><sheetViews><sheetView showGridLines="0" zoomScale="85" workbookViewId="0"><pane xSplit="1" ySplit="2" topLeftCell="B3" activePane="bottomRight" state="frozen"/><selection activeCell="A1" sqref="A1"/><selection pane="bottomRight" activeCell="D5" sqref="D5:E6 G1"/></sheetView></sheetViews><sheetFormatPr defaultRowHeight="13.5"/><sheetData><row r="1" ht="13.5"/><row r="2" ht="20" customHeight="1" outlineLevel="1"/></sheetData><sheetProtection sheet="1" formatCells="0"/>)");
    Sheet& sheet = *file->workbook().sheets()[0];
    sheet.ensure_loaded();
    EXPECT_EQ(sheet.defaults().tab_color, Color::theme(4, -0.25));
    EXPECT_FALSE(sheet.defaults().summary_below);
    EXPECT_FALSE(sheet.view().show_gridlines);
    EXPECT_EQ(sheet.view().zoom, 85);
    EXPECT_EQ(sheet.view().frozen_rows, 2);
    EXPECT_EQ(sheet.view().frozen_columns, 1);
    EXPECT_EQ(sheet.view().active_cell, (Position{5, 4}));
    EXPECT_EQ(sheet.view().selection.size(), 2U);
    EXPECT_EQ(sheet.row_formats().size(), 1U) << "a row that says no more than the standard is not kept";
    EXPECT_TRUE(sheet.protection().on && sheet.protection().format_cells && !sheet.protection().format_rows);
}

TEST(WorkbookFile, KeepsEveryByteWithoutAChange) {
    const TestFolder folder;
    const std::string bytes = zip_of(book_parts());
    write_file(folder.path("a.xlsx"), bytes);
    const auto file = WorkbookFile::open(folder / "a.xlsx");
    file->workbook().sheets()[0]->ensure_loaded();
    EXPECT_EQ(file->workbook().strings.size(), 3U);
    file->save(folder / "b.xlsx");
    EXPECT_EQ(file_text(folder.path("b.xlsx")), bytes);
}

TEST(WorkbookFile, AFormatTouchesTheSheetAndTheStylesOnly) {
    const auto parts =
        book_parts({{std::string(SheetPart), worksheet(R"(<sheetData><row r="1"><c r="A1"/></row></sheetData>)")}});
    const auto file = open_book(parts);
    Workbook& book = file->workbook();
    book.sheets()[0]->restyle(Area{}, [&](StyleId id) {
        id = book.styles.with_font(id, [](Font& font) { font.bold = true; });
        const auto number = book.styles.intern_number_format("0.0\"x\"");
        return book.styles.with_format(id, [&](CellFormat& format) { format.number_format = number; });
    });
    file->update();
    for (const TestPart& part : parts) {
        const bool may_change = part.name == SheetPart || part.name == "xl/styles.xml";
        EXPECT_EQ(file->package().read(part.name) != part.content, may_change) << part.name;
    }
    const std::string styles = file->package().read("xl/styles.xml");
    EXPECT_NE(
        styles.find(
            R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><numFmts count="1"><numFmt numFmtId="164" formatCode="0.0&quot;x&quot;"/></numFmts><!-- kept --><fonts count="2" x="y"><font><sz val="11"/><name val="Calibri"/></font><font><b/><sz val="11"/><name val="Calibri"/></font></fonts>)"),
        std::string::npos)
        << styles;
    EXPECT_NE(
        styles.find(
            R"(numFmtId="164" fontId="1" fillId="0" borderId="0" xfId="0" applyNumberFormat="1" applyFont="1"/></cellXfs>)"),
        std::string::npos)
        << styles;
    EXPECT_NE(styles.find("<cellXfs count=\"6\">"), std::string::npos)
        << "the format on the way to the last one is not written\n"
        << styles;
    EXPECT_TRUE(styles.ends_with(R"(<colors><mruColors><color rgb="FF123456"/></mruColors></colors></styleSheet>)"));

    // Written again from the same file, and read back.
    const auto again = open_book(
        book_parts({{"xl/styles.xml", updated(*file, "xl/styles.xml")}, {std::string(SheetPart), updated(*file)}}));
    const StyleId style = again->workbook().sheets()[0]->style_at({1, 1});
    EXPECT_EQ(file->package().read("xl/styles.xml"), styles);
    EXPECT_TRUE(again->workbook().styles.font_of(style).bold);
    EXPECT_EQ(again->workbook().styles.number_format(again->workbook().styles.formats[style].number_format),
              "0.0\"x\"");
}

TEST(WorkbookFile, AChangedFormulaDropsTheChainAndAsksForCalculation) {
    const auto file = open_book(book_parts());
    file->workbook().sheets()[0]->set_formula({1, 1}, "B1");
    EXPECT_NE(updated(*file, "xl/workbook.xml").find(R"(<calcPr calcId="1" fullCalcOnLoad="1"/>)"), std::string::npos);
    EXPECT_FALSE(file->package().has("xl/calcChain.xml"));
    EXPECT_TRUE(file->package().relationship("xl/workbook.xml", "calcChain").id.empty());
    file->update();
    EXPECT_FALSE(file->package().has("xl/calcChain.xml"));
}

TEST(WorkbookFile, NamesKeepWhatTheyWere) {
    const auto file = open_book(book_parts());
    auto& names = file->workbook().names;
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[1].refers_to, "\"a&b\"");
    EXPECT_TRUE(names[1].hidden && names[1].sheet == 0);
    names[0].refers_to = "One!$B$2";
    names.push_back({.name = "New", .refers_to = "1<2", .sheet = {}, .hidden = true, .comment = {}, .source = {}});
    file->workbook().names_changed = true;
    EXPECT_NE(
        updated(*file, "xl/workbook.xml")
            .find(
                R"(<definedNames><definedName name="Rate" function="0">One!$B$2</definedName><definedName name="_hid" hidden="1" localSheetId="0">"a&amp;b"</definedName><definedName name="New" hidden="1">1&lt;2</definedName></definedNames>)"),
        std::string::npos);
}

// Each dialect is written back in itself.
TEST(WorkbookFile, OtherPrefixesNamespacesAndEncodings) {
    struct Dialect {
        std::string before;
        std::string after;
    };
    const std::string strict = "http://purl.oclc.org/ooxml/spreadsheetml/main";
    const std::string main = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
    const std::string declared = R"(<?xml version="1.0" encoding=")";
    const std::string plain = R"("?><worksheet xmlns=")" + main + R"("><sheetData/></worksheet>)";
    const std::string filled = R"(<row r="1"><c r="A1"><v>1</v></c></row>)";
    const Dialect dialects[] = {
        {R"(<x:worksheet xmlns:x=")" + main +
             R"("><x:sheetData><x:row r="1"><x:c r="B1"/></x:row></x:sheetData></x:worksheet>)",
         R"(<x:worksheet xmlns:x=")" + main +
             R"("><x:sheetData><x:row r="1"><x:c r="A1"><x:v>1</x:v></x:c><x:c r="B1"/></x:row></x:sheetData></x:worksheet>)"},
        {R"(<worksheet xmlns=")" + strict + R"("><sheetData/></worksheet>)",
         R"(<worksheet xmlns=")" + strict + R"("><sheetData>)" + filled + R"(</sheetData></worksheet>)"},
        {R"(<worksheet xmlns=")" + main + R"("/>)",
         R"(<worksheet xmlns=")" + main + R"("><sheetData>)" + filled + R"(</sheetData></worksheet>)"},
        {utf16(declared + "UTF-16" + plain), declared + R"(UTF-8"?><worksheet xmlns=")" + main + R"("><sheetData>)" +
                                                 filled + R"(</sheetData></worksheet>)"},
        {"\xEF\xBB\xBF" + declared + "UTF-8" + plain, "\xEF\xBB\xBF" + declared + R"(UTF-8"?><worksheet xmlns=")" +
                                                          main + R"("><sheetData>)" + filled +
                                                          R"(</sheetData></worksheet>)"},
    };
    for (const Dialect& dialect : dialects) {
        const auto file = open_book(book_parts({{std::string(SheetPart), dialect.before}}));
        file->workbook().sheets()[0]->set_content({1, 1}, CellContent::of(1.0));
        EXPECT_EQ(updated(*file), dialect.after);
    }
}

TEST(WorkbookFile, AFileWithoutStylesGetsThem) {
    auto parts = book_parts(
        {{std::string(SheetPart), worksheet(R"(<sheetData><row r="1"><c r="A1"/></row></sheetData>)")},
         {"xl/_rels/workbook.xml.rels",
          R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet1.xml"/></Relationships>)"}});
    std::erase_if(parts, [](const TestPart& part) { return part.name == "xl/styles.xml"; });
    const auto file = open_book(parts);
    Workbook& book = file->workbook();
    book.sheets()[0]->restyle(
        Area{}, [&](StyleId id) { return book.styles.with_font(id, [](Font& font) { font.italic = true; }); });
    const std::string once = updated(*file, "xl/styles.xml");
    EXPECT_EQ(updated(*file, "xl/styles.xml"), once);
    parts.push_back({"xl/styles.xml", once});
    for (TestPart& part : parts) part.content = file->package().read(part.name);
    const auto again = open_book(parts);
    const StyleId style = again->workbook().sheets()[0]->style_at({1, 1});
    EXPECT_TRUE(again->workbook().styles.font_of(style).italic);
    EXPECT_EQ(again->workbook().styles.fills.size(), 2U);
}

// One selected tab: two selected ones would be edited together.
TEST(WorkbookFile, ActiveSheetMovesTheSelectedTab) {
    const std::string selected =
        worksheet(R"(<sheetViews><sheetView workbookViewId="0" tabSelected="1"/></sheetViews><sheetData/>)");
    const std::string other = worksheet(R"(<sheetViews><sheetView workbookViewId="0"/></sheetViews><sheetData/>)");
    const auto file = open_book(book_parts(
        {{"xl/workbook.xml",
          R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"><bookViews><workbookView/></bookViews><sheets><sheet name="One" sheetId="1" r:id="rId1"/><sheet name="Two" sheetId="2" r:id="rId5"/></sheets></workbook>)"},
         {"xl/_rels/workbook.xml.rels",
          R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet1.xml"/><Relationship Id="rId5" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet2.xml"/></Relationships>)"},
         {std::string(SheetPart), selected},
         {"xl/worksheets/sheet2.xml", other}}));
    file->workbook().active_sheet = 1;
    file->workbook().active_sheet_changed = true;
    EXPECT_EQ(updated(*file), other);
    EXPECT_EQ(updated(*file, "xl/worksheets/sheet2.xml"), selected);
    EXPECT_NE(file->package().read("xl/workbook.xml").find(R"(<workbookView activeTab="1"/>)"), std::string::npos);
    file->workbook().active_sheet = 0;
    EXPECT_EQ(updated(*file), selected);
}

TEST(WorkbookFile, BrokenPartsAreNamed) {
    const std::string head = R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)";
    const auto sheet = [&](const char* inside) { return head + inside + "</worksheet>"; };
    const struct {
        std::string part;
        std::string content;
        std::string message;
    } faults[] = {
        {"xl/worksheets/sheet1.xml", sheet("<sheetData>\n<row r=\"1\"><c r=\"ZZZ9\"/></row></sheetData>"),
         "xl/worksheets/sheet1.xml, line 2, column 12: <c r=\"ZZZ9\"> is outside the sheet"},
        {"xl/worksheets/sheet1.xml", sheet("\n<sheetData><row r=\"1048577\"/></sheetData>"),
         "xl/worksheets/sheet1.xml, line 2, column 12: <row r=\"1048577\"> is outside the sheet"},
        {"xl/worksheets/sheet1.xml", sheet("\n<sheetData><row r=\"1\"><c r=\"x\"/></row></sheetData>"),
         "xl/worksheets/sheet1.xml, line 2, column 23: <c r=\"x\"> is not a cell reference"},
        {"xl/worksheets/sheet1.xml", sheet("\n<sheetData><row r=\"1\"><c r=\"A2\"/></row></sheetData>"),
         "xl/worksheets/sheet1.xml, line 2, column 23: <c r=\"A2\"> stands in row 1"},
        {"xl/worksheets/sheet1.xml", sheet("\n<sheetData><row r=\"1\"><c r=\"A1\"><v>NaN</v></c></row></sheetData>"),
         "xl/worksheets/sheet1.xml, line 2, column 43: A1 holds NaN, which is not a number"},
        {"xl/worksheets/sheet1.xml", sheet("\n<sheetData><row r=\"1\"><c r=\"XFD1\"/><c/></row></sheetData>"),
         "xl/worksheets/sheet1.xml, line 2, column 36: row 1 has more cells than the sheet has columns"},
        {"xl/worksheets/sheet1.xml", sheet("\n<sheetData/><mergeCells><mergeCell ref=\"A1:B0\"/></mergeCells>"),
         "xl/worksheets/sheet1.xml, line 2, column 25: <mergeCell ref=\"A1:B0\"> is not an area of the sheet"},
        {"xl/worksheets/sheet1.xml", head + "\n<sheetData>",
         "xl/worksheets/sheet1.xml, line 2, column 12: is broken XML: no element found"},
        {"xl/worksheets/sheet1.xml", "<!DOCTYPE worksheet [<!ENTITY a \"b\">]>" + sheet("<sheetData/>"),
         "xl/worksheets/sheet1.xml, line 1, column 21: has a document type declaration, which workbooks may not have"},
        {"xl/worksheets/sheet1.xml", "<html/>",
         "xl/worksheets/sheet1.xml, line 1, column 1: is not a worksheet: it begins with <html>"},
        {"xl/sharedStrings.xml", "<sst", "xl/sharedStrings.xml, line 1, column 1: is broken XML: unclosed token"},
        {"xl/styles.xml", "<styleSheet/>",
         "xl/styles.xml, line 1, column 1: is not a <styleSheet> part: it begins with <styleSheet>"},
        {"xl/_rels/workbook.xml.rels",
         R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet7.xml"/></Relationships>)",
         "xl/worksheets/sheet7.xml: holds the sheet \"One\", and it is missing"},
        {"xl/_rels/workbook.xml.rels",
         R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"/>)",
         "xl/workbook.xml, line 1, column 163: tells no part for the sheet \"One\""},
    };
    for (const auto& fault : faults) {
        const auto work = [&] {
            const auto file = open_book(book_parts({{fault.part, fault.content}}));
            file->workbook().sheets()[0]->ensure_loaded();
            (void)file->workbook().strings.size();
        };
        EXPECT_EQ(failure_of(work), "book.xlsx: " + fault.message);
    }
}

TEST(WorkbookFile, NothingIsSavedOnceAPartWasBroken) {
    const auto file = open_sheet("<sheetData><row r=\"0\"/></sheetData>");
    file->workbook().names_changed = true;
    const auto touch = [&] { file->workbook().sheets()[0]->ensure_loaded(); };
    const std::string failure = failure_of(touch);
    EXPECT_NE(failure, "(no error)");
    EXPECT_EQ(failure_of([&] { file->update(); }), failure);
}

TEST(WorkbookFile, BottomlessNestingIsRefused) {
    std::string deep;
    for (int i = 0; i < 100'000; ++i) deep += "<a>";
    const auto file = open_sheet(deep);
    EXPECT_EQ(failure_of([&] { file->workbook().sheets()[0]->ensure_loaded(); }).substr(0, 47),
              "book.xlsx: xl/worksheets/sheet1.xml, line 1, co");
}

}  // namespace
}  // namespace kestrune::host::test
