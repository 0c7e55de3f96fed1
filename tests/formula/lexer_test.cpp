#include "formula/Lexer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>

#include "formula/Convert.h"
#include "formula/Edit.h"
#include "formula/FormulaCheck.h"
#include "formula/Listing.h"
#include "formula/Selection.h"
#include "formula/Shift.h"
#include "formula/TokenLetters.h"

namespace kestrune::formula {
namespace {

TEST(Lexer, CutsFormulas) {
    struct Case {
        const char* formula;
        const char* kinds;
    };
    const Case cases[] = {
        {"=1+.5*1.5E-10%", "=nBnBnP"},
        {"\"a \"\"b\"\"\"&'It''s'!A1", "sBr"},
        {"A1:C5 B:B", "rIr"},
        {"A1 +3:7", "r_Br"},
        {"A1:INDEX(B:B,2)", "rRf(r,n)"},
        {"LOG10(A1)+LOG10+A1B", "f(r)BrBN"},
        {"SUM(Jan:Mar!A1,[1]S!$A$1,'C:\\x\\[b.xls]S'!A:A)", "f(r,r,r)"},
        {"Jan1:Mar!A1", "rRr"},
        {"Table1[[#This Row],[a'] b]]+[@Col]-T2[]", "tBtBt"},
        {"{1,-2;\"x\",#N/A;TRUE,false}", "{n,pn;s,e;b,b}"},
        {"A1#+@B1+F(A1)#", "rPBprBf(r)P"},
        {"#REF!A1+Sheet1!#REF!+#REF!#REF!+[1]#REF!A1", "eBeBeBe"},
        {"A1#REF!", "rP!"},
        {"-(1>=-2<>3)", "p(nBpnBn)"},
        {"[1]!Rate*Sheet1!Rate+_xlfn.F()", "NBNBf()"},
        {"TRUE()=TRUE", "f()Bb"},
        {"1E5+1E+2A1", "nBnr"},
        {"cmd|'/c x'!A0+[1]!'!S!R1C1'", "NBN"},
        {"XFE1+A1048577+XFD1048576", "NBNBr"},
        {"\"open", "!"},
        {"'open!A1", "!"},
        {"T[x", "!"},
        {"Sheet1! A1", "!Ir"},
        {"a?\x01$", "N!!"},
    };
    for (const auto& [formula, expected] : cases) EXPECT_EQ(token_letters(formula), expected) << formula;
    EXPECT_EQ(token_letters("R[-1]C:RC[2]+R1C1+C+R5:R[2]+RATE(R)+Table1[R]+ROC", Notation::r1c1), "rBrBrBrBf(r)BtBN");
    EXPECT_EQ(token_letters("S!R1C1+R[1048576]C+R0C1+A1", Notation::r1c1), "rBtrBNBN");
}

TEST(Lexer, TokensCoverEveryByteOnce) {
    std::mt19937 random(7);  // NOLINT(bugprone-random-generator-seed): the same texts every time
    const std::string_view pieces[] = {"A1",  "$B$2", ":", "'",  "[",  "]",   "!",     "\"",   "(",     ")",
                                       "{",   "}",    ",", ";",  "#",  "@",   "#REF!", "SUM(", "R[-1]", "C",
                                       "1E5", ".",    " ", "-",  "<>", "Tab", "[1]",   "é",    "\xFF",  "|",
                                       "3:7", "A:A",  "$", "\n", "%",  "=",   "TRUE"};
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (auto left = random() % 14; left > 0; --left) text += pieces[random() % std::size(pieces)];
        for (const Notation notation : {Notation::a1, Notation::r1c1}) {
            Lexer lexer(text, notation);
            std::size_t at = 0;
            for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
                ASSERT_EQ(token.offset, at) << text;
                ASSERT_GT(token.length, 0U) << text;
                ASSERT_LE(token.prefix, token.length) << text;
                at = token.end();
            }
            ASSERT_EQ(at, text.size()) << text;
            const auto error = check_formula(text, notation);
            ASSERT_LE(error ? error->offset : 0, text.size()) << text;
            // What can be entered can still be entered when it has been filled elsewhere.
            if (!error && notation == Notation::a1) {
                ASSERT_FALSE(check_formula(shift_formula(text, 3, -1))) << text;
                ASSERT_FALSE(check_formula(to_r1c1(text, {5, 5}), Notation::r1c1)) << text;
                ASSERT_FALSE(check_formula(adjust_for_edit(text, "Tab", {Edit::Kind::delete_rows, "Tab", 2, 1})))
                    << text;
            }
        }
        (void)parse_selection(text);
        (void)ingredients(text, "Tab");
    }
}

// Each of these once made a careless scanner look at the same bytes again and again.
TEST(Lexer, LongTextsTakeTimeInProportion) {
    const auto begin = std::chrono::steady_clock::now();
    for (const char* piece : {"1.1", "A:", "A1:", "1|'", "'a'", "[", "[a]", "[1]A:", "(", "-", "\"", "((A1,", "{",
                              "#REF!", "A1 ", "x!", "1A", "$", "R[1]C:"}) {
        std::string text = "1.";
        while (text.size() < 200'000) text += piece;
        for (const Notation notation : {Notation::a1, Notation::r1c1}) {
            (void)references(text, notation);
            (void)check_formula(text, notation);
        }
        (void)parse_selection(text);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
}

TEST(Check, AcceptsWhatExcelAccepts) {
    for (const char* formula : {
             "=1",
             "A1",
             "=+A1",
             "=--A1",
             "=-A1%",
             "=A1 B1",
             "=(A1,B2)",
             "=SUM((A1,B2),C3)",
             "=IF(A1,,)",
             "=NOW( )",
             "=SUM(A1:B2 B1:C3)",
             "={1,2;3,4}",
             "=SUM({1,-2;\"a\",#N/A})",
             "=Sheet1!$A$1,Sheet1!$D$4",
             "=A1:INDEX(A:A,5)",
             "=Table1[[#This Row],[Col]]*2",
             "=LAMBDA(x,x+1)(2)",
             "=A1#",
             "=@A1:A5",
             "=#REF!",
             "=Sheet1!#REF!#",
             "=IF( A1 > 1 ,\n \"x\" , \"y\" )",
             "=(A1):(B2)",
             "=2^-1",
             "=\"a\"&\"b\"",
             "=TRUE",
             "=LET(x,1,x)",
             "=SUMPRODUCT(--(A1:A5=\"x\"),B1:B5)",
             "=[1]Sheet1!A1+'[b 1.xlsx]S'!B2",
             "=1<>2",
             "=SUM(A1 ,B1 )",
         })
        EXPECT_FALSE(check_formula(formula)) << formula << ": " << check_formula(formula)->message;
    EXPECT_FALSE(check_formula("=R[-1]C+SUM(R1C1:RC)", Notation::r1c1));
    EXPECT_FALSE(check_formula("=\"" + std::string(255, 'x') + "\""));
}

TEST(Check, RefusesWhatExcelRefuses) {
    struct Case {
        std::string formula;
        std::size_t offset;
    };
    std::string deep = "=";
    for (int i = 0; i < 65; ++i) deep += "ABS(";
    std::string many = "=SUM(1";
    for (int i = 0; i < 255; ++i) many += ",1";
    const Case cases[] = {
        {"", 0},
        {"=", 0},
        {"= ", 0},
        {"=1+", 2},
        {"=SUM(A1", 4},
        {"=)", 1},
        {"=A1 B1)", 6},
        {"=()", 2},
        {"=(1", 1},
        {"=1 2", 2},
        {"=A1 1", 4},
        {"=\"a\" \"b\"", 4},
        {"=\"a", 1},
        {"=A1\"x\"", 3},
        {"=1(2)", 2},
        {"=*1", 1},
        {"=A1==B1", 4},
        {"=A1=<B1", 4},
        {"=1:A1", 2},
        {"=A1:5", 4},
        {"=A1:", 3},
        {"={1,2", 1},
        {"={}", 2},
        {"={1,2;3}", 7},
        {"={A1}", 2},
        {"={1,}", 4},
        {"={1+2}", 3},
        {"=1}", 2},
        {"=(1,2)", 3},
        {"=1;2", 2},
        {"=SUM(1;2)", 6},
        {"='S!A1", 1},
        {"='S'A1", 1},
        {"=T[[x]", 1},
        {"=$", 1},
        {"=A$", 2},
        {"=1A", 2},
        {"=A1 , ", 4},
        {"=#BAD", 1},
        {"=(A1+1) B1", 7},
        {"=SUM(-)", 5},
        {"=A1\x01", 3},
        {"=(A1)(B1)", 5},
        {"=1#", 2},
        {"=(A1,B1+1)", 7},
        {"=\"" + std::string(256, 'x') + "\"", 1},
        {deep, 1 + 64 * 4 + 3},
        {many, many.size() - 2},
        {"=" + std::string(8192, '1'), 0},
    };
    for (const auto& [formula, offset] : cases) {
        const auto error = check_formula(formula);
        ASSERT_TRUE(error) << formula;
        EXPECT_EQ(error->offset, offset) << formula << ": " << error->message;
        EXPECT_FALSE(error->message.empty());
    }
}

}  // namespace
}  // namespace kestrune::formula
