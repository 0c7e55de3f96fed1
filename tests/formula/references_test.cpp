#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "formula/A1.h"
#include "formula/Column.h"
#include "formula/R1C1.h"
#include "formula/Selection.h"
#include "formula/SheetName.h"

namespace kestrune::formula {
namespace {

TEST(Column, LettersAndNumbersAgree) {
    const std::vector<std::pair<int, std::string>> cases{{1, "A"},    {26, "Z"},    {27, "AA"},    {52, "AZ"},
                                                         {702, "ZZ"}, {703, "AAA"}, {16384, "XFD"}};
    for (const auto& [number, letters] : cases) {
        EXPECT_EQ(column_letters(number), letters);
        EXPECT_EQ(parse_column_letters(letters), number);
    }
    EXPECT_EQ(parse_column_letters("xfd"), 16384);
    for (const char* wrong : {"", "XFE", "AAAA", "A1", "@", "["}) EXPECT_FALSE(parse_column_letters(wrong)) << wrong;
}

TEST(CellReference, OnlyCellsOnTheSheetAreRead) {
    EXPECT_EQ(parse_cell_reference("A1"), (Position{1, 1}));
    EXPECT_EQ(parse_cell_reference("ab12"), (Position{12, 28}));
    EXPECT_EQ(parse_cell_reference("XFD1048576"), (Position{max_rows, max_columns}));
    for (const char* wrong : {"", "A", "1", "A0", "A01", "A1048577", "XFE1", "A1B", "$A$1", "A1:B2", "A-1", "ZZZ9",
                              "AAAAAAAAAAAAAAAA1", "A99999999999999999999", " A1", "A1 "})
        EXPECT_FALSE(parse_cell_reference(wrong)) << wrong;
}

TEST(Area, IsPrintedAsExcelPrintsAddresses) {
    EXPECT_EQ(area_text(Area::cell({2, 2}), {true, true}), "$B$2");
    EXPECT_EQ(area_text({1, 1, 5, 3}), "A1:C5");
    EXPECT_EQ(area_text({1, 1, max_rows, 3}, {true, true}), "$A:$C");
    EXPECT_EQ(area_text({3, 1, 3, max_columns}), "3:3");
    EXPECT_EQ(area_text(Area::sheet(), {true, true}), "$1:$1048576");
    EXPECT_EQ(area_text({1, 1, 5, 3}, {true, false}), "A$1:C$5");
}

TEST(Selection, ReadsWhatAPersonWrites) {
    struct Case {
        const char* text;
        const char* printed;
    };
    const Case cases[] = {
        {"B2", "B2"},
        {"$A$1:B2,D4,F:F", "A1:B2,D4,F:F"},
        {"C5:A1", "A1:C5"},
        {"3:7", "3:7"},
        {"f : f", nullptr},
        {"A1 , B2", "A1,B2"},
        {"Sheet1!A1,C5", "Sheet1!A1,Sheet1!C5"},
        {"Sheet1!A1,sheet1!C5", "Sheet1!A1,Sheet1!C5"},
        {"'It''s a sheet'!A1:B2", "'It''s a sheet'!A1:B2"},
        {"'2024'!XFD1048576", "'2024'!XFD1048576"},
    };
    for (const auto& [text, printed] : cases) {
        const auto result = parse_selection(text);
        const auto* selection = std::get_if<Selection>(&result);
        ASSERT_EQ(selection != nullptr, printed != nullptr) << text;
        if (selection != nullptr) {
            EXPECT_EQ(selection_text(*selection), printed);
        }
    }
}

TEST(Selection, SaysWhatIsWrong) {
    using Kind = SelectionError::Kind;
    struct Case {
        const char* text;
        Kind kind;
        const char* named;
    };
    const Case cases[] = {
        {"", Kind::not_a_reference, "\"\""},
        {"Sales2020", Kind::not_a_reference, "Sales2020"},
        {"A1,", Kind::not_a_reference, "A1,"},
        {"A1;B2", Kind::not_a_reference, "A1;B2"},
        {"A1+1", Kind::not_a_reference, "A1+1"},
        {"LOG10(A1)", Kind::not_a_reference, "LOG10(A1)"},
        {"#REF!", Kind::not_a_reference, "#REF!"},
        {"'Sheet1!A1", Kind::not_a_reference, "'Sheet1!A1"},
        {"A1,Sheet2!B2", Kind::not_a_reference, "Sheet2"},
        {"ZZZ9", Kind::outside_sheet, "\"ZZZ9\""},
        {"B2,A1048577", Kind::outside_sheet, "\"A1048577\""},
        {"Sheet1!A0", Kind::outside_sheet, "\"A0\""},
        {"A1:XFE1", Kind::outside_sheet, "\"A1:XFE1\""},
        {"A:ZZZ", Kind::outside_sheet, "\"A:ZZZ\""},
        {"1:1048577", Kind::outside_sheet, "\"1:1048577\""},
        {"Sheet1!A1,Sheet2!B2", Kind::several_sheets, "Sheet2"},
        {"Jan:Mar!A1", Kind::several_sheets, "Jan:Mar"},
        {"[1]Sheet1!A1", Kind::other_workbook, "[1]Sheet1!A1"},
    };
    for (const auto& [text, kind, named] : cases) {
        const auto result = parse_selection(text);
        const auto* error = std::get_if<SelectionError>(&result);
        ASSERT_NE(error, nullptr) << text;
        EXPECT_EQ(error->kind, kind) << text << ": " << error->message;
        EXPECT_NE(error->message.find(named), std::string::npos) << error->message;
    }
}

TEST(SheetName, IsQuotedWhereExcelQuotes) {
    for (const char* plain : {"Sheet1", "P_L", "Jan.2020", "Umsätze", "売上", "RATES", "Cash", "XFE1", "R0C1", "_1"})
        EXPECT_EQ(quoted_sheet(plain), plain);
    for (const char* odd : {"My Sheet", "2020", ".x", "A1", "xfd1048576", "R", "c", "RC", "R1C1", "C5", "P&L", "a-b",
                            "TRUE", "a\xE2\x80\x93z", "\xC2\xA3", "[x", "RC12", "R1C1x"})
        EXPECT_EQ(quoted_sheet(odd), std::string("'") + odd + "'");
    EXPECT_EQ(quoted_sheet("It's"), "'It''s'");
}

TEST(SheetName, PrefixesComeApart) {
    using P = SheetPrefix;
    EXPECT_EQ(parse_sheet_prefix("Sheet1!"), (P{"", "Sheet1", "Sheet1"}));
    EXPECT_EQ(parse_sheet_prefix("'It''s'!"), (P{"", "It's", "It's"}));
    EXPECT_EQ(parse_sheet_prefix("Jan:Mar!"), (P{"", "Jan", "Mar"}));
    EXPECT_EQ(parse_sheet_prefix("'Jan 1:Mar 1'!"), (P{"", "Jan 1", "Mar 1"}));
    EXPECT_EQ(parse_sheet_prefix("[1]!"), (P{"1", "", ""}));
    EXPECT_EQ(parse_sheet_prefix("'C:\\m[1]\\[b.xls]S'!"), (P{"C:\\m[1]\\b.xls", "S", "S"}));
    EXPECT_TRUE(names_sheet("SHEET1!", "Sheet1"));
    EXPECT_TRUE(names_sheet("'It''s'!", "It's"));
    EXPECT_TRUE(names_sheet("[0]Sheet1!", "Sheet1"));
    for (const char* other : {"Sheet2!", "[1]Sheet1!", "Sheet1:Sheet3!", "'Sheet1:Sheet3'!", "", "!"})
        EXPECT_FALSE(names_sheet(other, "Sheet1")) << other;
}

}  // namespace
}  // namespace kestrune::formula
