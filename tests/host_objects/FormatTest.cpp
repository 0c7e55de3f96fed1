#include <chrono>

#include "host_objects/HostFixture.h"

namespace kestrune::host {
namespace {

class FormatTest : public HostTest {};

TEST_F(FormatTest, WritesReadBackAndMixedReadsAreNull) {
    struct Case {
        const char* part;  // of the range; empty: the range itself
        const char* member;
        Value written;
        Value read;
    };
    const Case cases[] = {
        {"Font", "Name", "Arial", "Arial"},
        {"Font", "Size", 10, 10.0},
        {"Font", "Bold", true, true},
        {"Font", "Italic", true, true},
        {"Font", "FontStyle", "Bold Italic", "Bold Italic"},
        {"Font", "Underline", xlUnderlineStyleDoubleAccounting, xlUnderlineStyleDoubleAccounting},
        {"Font", "Strikethrough", true, true},
        {"Font", "Superscript", true, true},
        {"Font", "Color", 0x1234FF, double{0x1234FF}},
        {"Font", "ColorIndex", 5, 5},
        {"Font", "ThemeColor", 5, 5},
        {"Interior", "Color", 65535, 65535.0},
        {"Interior", "ColorIndex", 6, 6},
        {"Interior", "Pattern", 17, 17},
        {"", "NumberFormat", "0.000", "0.000"},
        {"", "HorizontalAlignment", xlCenter, xlCenter},
        {"", "VerticalAlignment", xlTop, xlTop},
        {"", "Orientation", 45, 45},
        {"", "Orientation", -30, -30},
        {"", "Orientation", 90, xlUpward},
        {"", "Orientation", xlVertical, xlVertical},
        {"", "IndentLevel", 3, 3},
        {"", "ShrinkToFit", true, true},
        {"", "WrapText", true, true},
        {"", "Locked", false, false},
        {"", "FormulaHidden", true, true},
        {"", "RowHeight", 30.1, 30.0},
        {"", "ColumnWidth", 10.33, 10.29},
    };
    for (const auto& [part, member, written, read] : cases) {
        SCOPED_TRACE(member);
        const auto of = [&](const char* cells) { return *part ? object(range(cells), part) : range(cells); };
        object(application, "ActiveSheet");
        call(range("A:XFD"), "ClearFormats");
        put(of("B2"), member, written);
        EXPECT_EQ(get(of("B2"), member), read);
        EXPECT_EQ(get(of("B2:C3"), member), Value(Null{}));
        EXPECT_EQ(get(of("B2,D9"), member), Value(Null{}));
        put(of("B2:C3,D9"), member, written);
        EXPECT_EQ(get(of("B2:C3,D9"), member), read);
        put(range("1:100"), "RowHeight", 15);
        put(range("A:Z"), "ColumnWidth", 8.43);
    }
}

TEST_F(FormatTest, RefusesWhatExcelRefuses) {
    const struct {
        const char* part;
        const char* member;
        Value value;
    } cases[] = {
        {"", "HorizontalAlignment", 12345},
        {"", "VerticalAlignment", 1},
        {"", "Orientation", 91},
        {"", "IndentLevel", -1},
        {"", "IndentLevel", 16},
        {"", "NumberFormat", "0.0.0;;;;;"},
        {"", "NumberFormat", "[Redd]0"},
        {"", "RowHeight", 409.6},
        {"", "RowHeight", -1},
        {"", "ColumnWidth", 255.5},
        {"", "Hidden", true},
        {"", "OutlineLevel", 9},
        {"Font", "Size", 0.5},
        {"Font", "Size", 410},
        {"Font", "Name", ""},
        {"Font", "Underline", 3},
        {"Font", "ColorIndex", 57},
        {"Font", "ThemeColor", 13},
        {"Font", "TintAndShade", 1.5},
        {"Interior", "ColorIndex", -1},
        {"Interior", "Pattern", 99},
        {"Borders", "LineStyle", 7},
        {"Borders", "Weight", 3},
        {"Borders", "ColorIndex", 99},
    };
    for (const auto& [part, member, value] : cases) {
        const ObjectRef target = *part ? object(range("A1"), part) : range("A1");
        const Value before = *member == 'H' && std::string_view(member) == "Hidden" ? Value() : get(target, member);
        EXPECT_EQ(refused(target, member, value), error_1004) << part << member;
        if (std::string_view(member) != "Hidden") {
            EXPECT_EQ(get(target, member), before) << part << member;
        }
    }
    EXPECT_EQ(refused(range("A1"), "RowHeight", Null{}), automation::hresult::type_mismatch);
}

TEST_F(FormatTest, ColoursAnswerTheNearestPaletteEntry) {
    const ObjectRef text = font(range("A1"));
    EXPECT_EQ(get(text, "Color"), Value(0.0));
    EXPECT_EQ(get(text, "ThemeColor"), Value(2)) << "dark text of the theme";
    EXPECT_EQ(get(text, "ColorIndex"), Value(1));
    put(text, "Color", 254);
    EXPECT_EQ(get(text, "Color"), Value(254.0)) << "the true colour is stored";
    EXPECT_EQ(get(text, "ColorIndex"), Value(3));
    put(text, "ColorIndex", xlAutomatic);
    EXPECT_EQ(get(text, "Color"), Value(0.0));
    EXPECT_EQ(get(text, "ColorIndex"), Value(xlAutomatic));
    put(text, "Color", -16776961);
    EXPECT_EQ(get(text, "Color"), Value(255.0)) << "as recorded macros write red";
    put(text, "ColorIndex", 5);
    workbook->palette[4] = 0x112233;
    EXPECT_EQ(get(text, "Color"), Value(double{0x112233})) << "an entry follows the palette";
    put(text, "ThemeColor", 5);
    put(text, "TintAndShade", 0.5);
    EXPECT_EQ(get(text, "TintAndShade"), Value(0.5));
}

TEST_F(FormatTest, FillsKeepTheirColourThroughPatterns) {
    const ObjectRef fill = interior(range("A1"));
    EXPECT_EQ(get(fill, "ColorIndex"), Value(xlNone));
    EXPECT_EQ(get(fill, "Color"), Value(16777215.0));
    EXPECT_EQ(get(fill, "Pattern"), Value(xlNone));
    put(fill, "Color", 65535);
    EXPECT_EQ(get(fill, "Pattern"), Value(xlSolid));
    put(fill, "Pattern", -4124);
    EXPECT_EQ(get(fill, "Color"), Value(65535.0));
    EXPECT_EQ(get(fill, "PatternColorIndex"), Value(xlAutomatic));
    put(fill, "PatternColor", 255);
    put(fill, "Pattern", xlSolid);
    EXPECT_EQ(get(fill, "Color"), Value(65535.0));
    put(fill, "ColorIndex", xlNone);
    EXPECT_EQ(get(fill, "Pattern"), Value(xlNone));
    EXPECT_EQ(get(fill, "Color"), Value(16777215.0));
}

TEST_F(FormatTest, IndentsNeedASide) {
    const ObjectRef cell = range("A1");
    put(cell, "IndentLevel", 2);
    EXPECT_EQ(get(cell, "HorizontalAlignment"), Value(xlLeft));
    put(cell, "HorizontalAlignment", xlRight);
    EXPECT_EQ(get(cell, "IndentLevel"), Value(2));
    for (const std::int32_t alignment : {xlCenter, xlGeneral, xlFill, xlJustify}) {
        put(cell, "IndentLevel", 2);
        put(cell, "HorizontalAlignment", alignment);
        EXPECT_EQ(get(cell, "IndentLevel"), Value(0)) << alignment;
    }
    put(cell, "HorizontalAlignment", xlGeneral);
    put(cell, "IndentLevel", 0);
    EXPECT_EQ(get(cell, "HorizontalAlignment"), Value(xlGeneral));
}

TEST_F(FormatTest, WholeColumnsCostNothing) {
    put(range("A1:A1000"), "Value", 1);
    const auto start = std::chrono::steady_clock::now();
    for (const char* cells : {"A:C", "5:9", "A:XFD", "B2:XFD1048576"}) {
        put(font(range(cells)), "Bold", true);
        EXPECT_EQ(get(font(range(cells)), "Bold"), Value(true));
        put(border(range(cells), xlInsideVertical), "LineStyle", xlContinuous);
        put(range(cells), "NumberFormat", "0.00");
        EXPECT_EQ(get(range(cells), "NumberFormat"), Value("0.00"));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_LT(inputs_sheet->stored_cells(), 5000);
    EXPECT_EQ(get(font(range("XFD1048576")), "Bold"), Value(true));
}

TEST_F(FormatTest, RowsAndColumnsHide) {
    put(range("3:4"), "RowHeight", 20);
    put(object(range("B3"), "EntireRow"), "Hidden", true);
    EXPECT_EQ(get(range("3:3"), "Hidden"), Value(true));
    EXPECT_EQ(get(range("3:4"), "Hidden"), Value(Null{}));
    EXPECT_EQ(get(range("B3"), "RowHeight"), Value(0.0));
    put(range("3:3"), "Hidden", false);
    EXPECT_EQ(get(range("3:4"), "RowHeight"), Value(20.25)) << "the height comes back";
    EXPECT_EQ(get(range("A1:A4"), "RowHeight"), Value(Null{}));
    EXPECT_EQ(number(range("A3:A4"), "Height"), 40.5);
    EXPECT_EQ(number(range("A3"), "Top"), 30);
    put(range("C:D"), "ColumnWidth", 0);
    EXPECT_EQ(get(range("C:D"), "Hidden"), Value(true));
    put(range("C:D"), "Hidden", false);
    EXPECT_EQ(get(range("C:D"), "Hidden"), Value(false));
    EXPECT_EQ(number(range("A1:B1"), "Width"), 96) << "two columns of 64 pixels";
    put(range("2:5"), "OutlineLevel", 3);
    EXPECT_EQ(get(range("2:5"), "OutlineLevel"), Value(3));
    EXPECT_EQ(get(range("1:5"), "OutlineLevel"), Value(Null{}));
    put(range("B:B"), "OutlineLevel", 2);
    EXPECT_EQ(get(object(sheet("Inputs"), "Columns", {2}), "OutlineLevel"), Value(2));
}

TEST_F(FormatTest, TheStandardWidthIsTheWidthOfOtherColumns) {
    const ObjectRef inputs = sheet("Inputs");
    EXPECT_EQ(get(inputs, "StandardWidth"), Value(8.43));
    EXPECT_EQ(get(inputs, "StandardHeight"), Value(15.0));
    put(inputs, "StandardWidth", 12);
    EXPECT_EQ(get(inputs, "StandardWidth"), Value(12.0));
    EXPECT_EQ(get(range("F1"), "ColumnWidth"), Value(12.0));
    EXPECT_EQ(refused(inputs, "StandardWidth", 256), error_1004);
}

TEST_F(FormatTest, AnOutlineShowsItsLevels) {
    put(range("2:6"), "OutlineLevel", 2);
    put(range("3:4"), "OutlineLevel", 3);
    put(range("C:D"), "OutlineLevel", 2);
    const ObjectRef outline = object(sheet("Inputs"), "Outline");
    const auto hidden_rows = [&] {
        std::string rows;
        for (const char* row : {"1:1", "2:2", "3:3", "4:4", "5:5", "6:6", "7:7"}) {
            rows += get(range(row), "Hidden") == Value(true) ? 'x' : '.';
        }
        return rows;
    };
    call(outline, "ShowLevels", {1});
    EXPECT_EQ(hidden_rows(), ".xxxxx.");
    EXPECT_TRUE(inputs_sheet->row_format(7)->collapsed) << "the summary row below carries the mark";
    call(outline, "ShowLevels", {2});
    EXPECT_EQ(hidden_rows(), "..xx...");
    EXPECT_TRUE(inputs_sheet->row_format(5)->collapsed);
    call(outline, "ShowLevels", {8, 1});
    EXPECT_EQ(hidden_rows(), ".......");
    EXPECT_EQ(get(range("C:D"), "Hidden"), Value(true));
    EXPECT_EQ(call_refused(outline, "ShowLevels", {9}), error_1004);
    put(outline, "SummaryRow", xlSummaryAbove);
    EXPECT_FALSE(inputs_sheet->defaults().summary_below);
}

}  // namespace
}  // namespace kestrune::host
