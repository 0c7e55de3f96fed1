#include <gtest/gtest.h>

#include <string>

#include "formula/Convert.h"
#include "formula/Edit.h"
#include "formula/Listing.h"
#include "formula/Shift.h"

namespace kestrune::formula {
namespace {

TEST(Shift, MovesRelativeReferencesOnly) {
    struct Case {
        const char* before;
        int rows;
        int columns;
        const char* after;
    };
    const Case cases[] = {
        {"=A1+$A1+A$1+$A$1", 2, 1, "=B3+$A3+B$1+$A$1"},
        {"SUM(A1:B2,Sheet2!C3,[1]S!D4,'a b'!E5)", 1, 1, "SUM(B2:C3,Sheet2!D4,[1]S!E5,'a b'!F6)"},
        {"LOG10(A1)&\"A1\"&A1x&Table1[A1]&[@A1]&A1.b", 1, 0, "LOG10(A2)&\"A1\"&A1x&Table1[A1]&[@A1]&A1.b"},
        {"=A:A+1:1+$A:B+1:$2", 1, 1, "=B:B+2:2+$A:C+2:$2"},
        {"=SUM( a1 ,\n $a$1 )", 1, 0, "=SUM( A2 ,\n $a$1 )"},
        {"=A1+B2", -1, 0, "=#REF!+B1"},
        {"=Sheet2!A1:B2", -1, 0, "=Sheet2!#REF!"},
        {"=XFD1048576", 0, 1, "=#REF!"},
        {"=A$5:A6", -3, 0, "=A3:A$5"},
        {"=$C1:D1", 0, -2, "=B1:$C1"},
        {"=A1#", 1, 1, "=B2#"},
        {"=Jan:Mar!A1", 1, 0, "=Jan:Mar!A2"},
        {"=#REF!A1", 1, 0, "=#REF!A1"},
        {"not ( a A1 formula", 1, 0, "not ( a A2 formula"},
    };
    for (const auto& [before, rows, columns, after] : cases) EXPECT_EQ(shift_formula(before, rows, columns), after);
    EXPECT_EQ(shift_formula("A1+XFD$5", -1, 1, OffSheet::wrap), "B1048576+A$5");
    EXPECT_EQ(shift_formula("A1:A3", -2, 0, OffSheet::wrap), "A1:A1048575");
    EXPECT_EQ(shift_formula("A1", 2147483647, 0), "#REF!");
}

TEST(Shift, MovesDistances) {
    EXPECT_EQ(shift_r1c1_formula("=R[-1]C+RC[2]+R5C+R5C3+S!RC", 1, -2), "=RC[-2]+R[1]C+R5C[-2]+R5C3+S!R[1]C[-2]");
    EXPECT_EQ(shift_r1c1_formula("=SUM(R:R[2],C1)&\"RC\"", 3, 1), "=SUM(R[3]:R[5],C1)&\"RC\"");
}

TEST(Convert, GoesBothWays) {
    struct Case {
        const char* a1;
        const char* r1c1;
    };
    const Case cases[] = {
        {"=A1+$A1+A$1+$A$1", "=R[-4]C[-2]+R[-4]C1+R1C[-2]+R1C1"},
        {"=C5", "=RC"},
        {"=SUM(A:C,5:5,$3:$7,$A:A)", "=SUM(C[-2]:C,R,R3:R7,C1:C[-2])"},
        {"=SUM('a b'!B4:D6)*2", "=SUM('a b'!R[-1]C[-1]:R[1]C[1])*2"},
        {"=IF(T[RC]=\"C5\",Rate,LOG10(1))", "=IF(T[RC]=\"C5\",Rate,LOG10(1))"},
    };
    for (const auto& [a1, r1c1] : cases) {
        EXPECT_EQ(to_r1c1(a1, {5, 3}), r1c1);
        EXPECT_EQ(to_a1(r1c1, {5, 3}), a1);
    }
    EXPECT_EQ(to_a1("=R[-1]C+RC[-1]", {1, 1}), "=A1048576+XFD1");
    EXPECT_EQ(to_a1("=rc[1]:r2c", {1, 1}), "=A1:B$2");
}

TEST(Edit, ReferencesFollowTheCells) {
    using Kind = Edit::Kind;
    struct Case {
        const char* before;
        Kind kind;
        int first;
        int count;
        const char* after;
    };
    const Case cases[] = {
        {"=A1+A5+$A$6", Kind::insert_rows, 5, 2, "=A1+A7+$A$8"},
        {"=SUM(A1:A5)+SUM(A5:A9)+SUM(A1:A4)", Kind::insert_rows, 5, 1, "=SUM(A1:A6)+SUM(A6:A10)+SUM(A1:A4)"},
        {"=A:A+5:6+A1048576", Kind::insert_rows, 5, 1, "=A:A+6:7+#REF!"},
        {"=SUM(A9:A1048576,A1:A1048576)", Kind::insert_rows, 3, 1, "=SUM(A10:A1048576,A1:A1048576)"},
        {"=A4+A5+A6+A7", Kind::delete_rows, 5, 2, "=A4+#REF!+#REF!+A5"},
        {"=SUM(A5:A6)+SUM(A4:A6)+SUM(A6:A9)+SUM(A1:A9)", Kind::delete_rows, 5, 2,
         "=SUM(#REF!)+SUM(A4:A4)+SUM(A5:A7)+SUM(A1:A7)"},
        {"=SUM(A9:A3)", Kind::delete_rows, 4, 1, "=SUM(A3:A8)"},
        {"=SUM(Sheet1!5:6)+Sheet2!A5+'SHEET1'!A5", Kind::delete_rows, 5, 2,
         "=SUM(Sheet1!#REF!)+Sheet2!A5+'SHEET1'!#REF!"},
        {"=B:C+$D:$D+B2:D2+5:5", Kind::insert_columns, 3, 1, "=B:D+$E:$E+B2:E2+5:5"},
        {"=B:C+$D:$D+B2:D2+C9", Kind::delete_columns, 3, 1, "=B:B+$C:$C+B2:C2+#REF!"},
        {"=[1]Sheet1!C9+Sheet1:Sheet3!C9+T[C9]+\"C9\"", Kind::delete_columns, 3, 1,
         "=[1]Sheet1!C9+Sheet1:Sheet3!C9+T[C9]+\"C9\""},
        {"=Sheet1!#REF!+c1", Kind::insert_rows, 5, 1, "=Sheet1!#REF!+c1"},
    };
    for (const auto& [before, kind, first, count, after] : cases)
        EXPECT_EQ(adjust_for_edit(before, "Sheet1", {kind, "Sheet1", first, count}), after);
    EXPECT_EQ(adjust_for_edit("=A5+Sheet1!A5", "Sheet2", {Kind::insert_rows, "Sheet1", 1, 1}), "=A5+Sheet1!A6");
}

TEST(Listing, TellsWhereReferencesPoint) {
    const std::string_view formula = "=A1+'It''s'!B2:C3*SUM([2]S!D:D)";
    const auto uses = references(formula);
    ASSERT_EQ(uses.size(), 3U);
    EXPECT_EQ(formula.substr(uses[1].offset, uses[1].length), "'It''s'!B2:C3");
    EXPECT_EQ(uses[1].sheet.first_sheet, "It's");
    EXPECT_EQ(area_of(uses[1].reference), (Area{2, 2, 3, 3}));
    EXPECT_EQ(uses[2].sheet.book, "2");
    EXPECT_EQ(uses[0].sheet, SheetPrefix{});
}

TEST(Listing, TellsWhatAFormulaIsMadeOf) {
    struct Case {
        const char* formula;
        const char* found;  // Cells Names Functions numbers Texts Sheets Workbooks Lost
    };
    const Case cases[] = {
        {"=A1+B2", "C"},        {"=A1*1.05", "Cn"},           {"=LOG10(Sheet1!A1)", "CF"},
        {"=Sheet2!A1", "CS"},   {"=[1]Sheet1!A1", "CW"},      {"=Rate+T[1]", "N"},
        {"={1,2}", "n"},        {"=Sheet1!A1&\"2\"", "CT"},   {"=[1]!Rate", "NW"},
        {"=Sheet2!Rate", "NS"}, {"=Sheet2!#REF!+#N/A", "SL"}, {"=A1:B2+XFE1", "CN"},
        {"=a|'b'!c", "NW"},     {"=Sheet1:Sheet3!A1", "CS"},  {"=TRUE", ""},
    };
    for (const auto& [formula, expected] : cases) {
        const Ingredients i = ingredients(formula, "Sheet1");
        std::string found;
        for (const auto& [has, letter] : {std::pair{i.cells, 'C'},
                                          {i.names, 'N'},
                                          {i.functions, 'F'},
                                          {i.numbers, 'n'},
                                          {i.texts, 'T'},
                                          {i.other_sheets, 'S'},
                                          {i.other_workbooks, 'W'},
                                          {i.lost_references, 'L'}})
            if (has) found += letter;
        EXPECT_EQ(found, expected) << formula;
    }
}

}  // namespace
}  // namespace kestrune::formula
