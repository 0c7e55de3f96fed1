#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Sure, NamesAreAddedReadAndDeleted) {
    call(names(), "Add", {"Rate", "=0.05"});
    call(names(), "Add", Arguments{"_bbr.X.ebr", range("B2:C3")}.name("Visible", false));
    call(names(), "Add", {"Local", "=$D$4"});
    call(object(sheet("Sheet2"), "Names"), "Add", {"Local", "=Sheet2!$E$5"});
    EXPECT_EQ(get(names(), "Count"), Value(4));
    EXPECT_EQ(get(object(sheet("Sheet2"), "Names"), "Count"), Value(1));
    EXPECT_EQ(get(name("rate"), "RefersTo"), Value("=0.05"));
    EXPECT_EQ(get(name("_bbr.X.ebr"), "RefersTo"), Value("=Sheet1!$B$2:$C$3"));
    EXPECT_EQ(get(name("_bbr.X.ebr"), "Visible"), Value(false));
    EXPECT_EQ(get(name("Local"), "RefersTo"), Value("=Sheet1!$D$4")) << "the active sheet is added";
    EXPECT_EQ(get(name("Sheet2!Local"), "Name"), Value("Sheet2!Local"));
    EXPECT_EQ(address(object(name("_bbr.X.ebr"), "RefersToRange")), "$B$2:$C$3");
    EXPECT_EQ(call_refused(name("Rate"), "RefersToRange"), error_1004);

    const ObjectRef rate = name("Rate");
    put(rate, "RefersTo", "=Sheet1!$A$1");
    put(rate, "Name", "Growth");
    EXPECT_EQ(get(name("Growth"), "RefersTo"), Value("=Sheet1!$A$1"));
    EXPECT_EQ(refused(rate, "Name", "Local"), error_1004);
    call(rate, "Delete");
    EXPECT_EQ(get(names(), "Count"), Value(3));
    EXPECT_EQ(call_refused(rate, "RefersTo"), error_1004);
}

TEST_F(Sure, NamesAreValidOnes) {
    for (const char* text : {"A1", "TAX2024", "R1C1", "1st", "two words", "", "Nowhere!X"}) {
        EXPECT_EQ(call_refused(names(), "Add", {text, "=1"}), error_1004) << text;
    }
    for (const char* text : {"TAX_2024", "_x", "\\y", "Zinssatz_ä", "a.b"}) {
        EXPECT_EQ(call_refused(names(), "Add", {text, "=1"}), ok) << text;
    }
    EXPECT_EQ(call_refused(names(), "Add", {"Bad", "=1+"}), error_1004);
    EXPECT_EQ(call_refused(names(), "Item", {"Absent"}), error_1004);
}

TEST_F(Likely, NamesInLetAndLambdaAreNoNamesOfTheWorkbook) {
    put(range("A1"), "Formula", "=_xlfn.LET(_xlpm.x,B1,_xlpm.x*2)");
    EXPECT_EQ(get(names(), "Count"), Value(0));
    EXPECT_EQ(get(range("A1"), "FormulaR1C1"), Value("=_xlfn.LET(_xlpm.x,RC[1],_xlpm.x*2)"));
    put(range("A2"), "Formula", "=_xlfn._xlws.sort(_xlfn.lambda(_xlpm.f,_xlpm.f(b1))(sum))");
    EXPECT_EQ(get(range("A2"), "Formula"), Value("=_xlfn._xlws.SORT(_xlfn.LAMBDA(_xlpm.f,_xlpm.f(B1))(sum))"));
}

}  // namespace
}  // namespace kestrune::contract
