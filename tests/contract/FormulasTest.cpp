#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Sure, FormulasAdjustAsAFillDoes) {
    put(range("B2:C3"), "Formula", "=sum($a1,D$5)*2");
    EXPECT_EQ(get(range("B2:C3"), "Formula"),
              block({{"=SUM($A1,D$5)*2", "=SUM($A1,E$5)*2"}, {"=SUM($A2,D$5)*2", "=SUM($A2,E$5)*2"}}));
    EXPECT_EQ(get(range("C3"), "FormulaR1C1"), Value("=SUM(R[-1]C1,R5C[2])*2"));
    put(range("B2:B3"), "FormulaR1C1", "=R[-1]C+1");
    EXPECT_EQ(get(range("B2:B3"), "Formula"), block({{"=B1+1"}, {"=B2+1"}}));
    put(range("E1,G4"), "Formula", "=F1");
    EXPECT_EQ(get(range("G4"), "Formula"), Value("=H4"));
    put(range("A10:B10"), "Formula", block({{"=A1", "=A1"}}));
    EXPECT_EQ(get(range("A10:B10"), "Formula"), block({{"=A1", "=A1"}})) << "an array is taken cell by cell";
}

TEST_F(Sure, FormulasThatAreBadChangeNothing) {
    put(range("A1:B1"), "Value", block({{1, 2}}));
    for (const char* formula : {"=1+", "=SUM(1", "=A1:", "=\"open"}) {
        EXPECT_EQ(refused(range("A1:B1"), "Formula", formula), error_1004) << formula;
    }
    EXPECT_EQ(refused(range("A1:B1"), "Value", block({{5, "=)"}})), error_1004);
    EXPECT_EQ(get(range("A1:B1"), "Value"), block({{1.0, 2.0}}));
}

TEST_F(Sure, HasFormulaIsNullWhenMixed) {
    put(range("A1:A3"), "Formula", "=B1");
    EXPECT_EQ(get(range("A1:A3"), "HasFormula"), Value(true));
    EXPECT_EQ(get(range("A1:A4"), "HasFormula"), Value(Null{}));
    EXPECT_EQ(get(range("C:C"), "HasFormula"), Value(false));
    EXPECT_EQ(get(range("A1,C1"), "HasFormula"), Value(Null{}));
}

TEST_F(Sure, ArrayFormulasChangeAsAWhole) {
    put(range("B2:C3"), "FormulaArray", "=A1:B2*2");
    EXPECT_EQ(get(range("C3"), "HasArray"), Value(true));
    EXPECT_EQ(get(range("C3"), "Formula"), Value("=A1:B2*2"));
    EXPECT_EQ(get(range("B2:C3"), "HasFormula"), Value(true));
    EXPECT_EQ(get(range("B2:C3"), "FormulaArray"), Value("=A1:B2*2"));
    EXPECT_EQ(address(object(range("C3"), "CurrentArray")), "$B$2:$C$3");
    EXPECT_EQ(refused(range("C3"), "Value", 1), error_1004);
    EXPECT_EQ(call_refused(range("A1:B2"), "ClearContents"), error_1004);
    EXPECT_EQ(get(range("A1:C3"), "HasArray"), Value(Null{}));
    put(range("A1:D4"), "Value", 5);
    EXPECT_EQ(get(range("C3"), "Value"), Value(5.0));
    EXPECT_EQ(get(range("B2:C3"), "HasArray"), Value(false));
}

}  // namespace
}  // namespace kestrune::contract
