#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Sure, ConditionsAreAddedInOrder) {
    const ObjectRef all = conditions(range("B2:C3"));
    const ObjectRef first =
        to_object(call(all, "Add", Arguments{}.name("Type", 1).name("Operator", 5).name("Formula1", "1")));
    put(object(first, "Font"), "Color", 255);
    call(all, "Add", {1, 1, "0.00001", ".99999"});
    call(all, "Add", {1, 6, "0", Missing{}});
    EXPECT_EQ(get(all, "Count"), Value(3));
    EXPECT_EQ(get(conditions(range("C3:D9")), "Count"), Value(3));
    EXPECT_EQ(get(conditions(range("D4")), "Count"), Value(0));
    const ObjectRef second = condition(range("B2"), 2);
    EXPECT_EQ(get(second, "Type"), Value(1));
    EXPECT_EQ(get(second, "Operator"), Value(xlBetween));
    EXPECT_EQ(get(second, "Formula1"), Value("=0.00001"));
    EXPECT_EQ(get(second, "Formula2"), Value("=.99999"));
    EXPECT_EQ(address(object(second, "AppliesTo")), "$B$2:$C$3");
    EXPECT_EQ(get(object(condition(range("B2"), 1), "Font"), "Color"), Value(255.0));
    EXPECT_EQ(get(object(second, "Font"), "Color"), Value(Null{}));
    EXPECT_EQ(call_refused(condition(range("B2"), 3), "Formula2"), error_1004);
}

TEST_F(Sure, ConditionsAreDeletedFromTheRangeOnly) {
    call(conditions(range("A1:C3")), "Add", {2, Missing{}, "=A1>1"});
    call(conditions(range("B2")), "Delete");
    EXPECT_EQ(get(conditions(range("B2")), "Count"), Value(0));
    EXPECT_EQ(get(conditions(range("A1:C3")), "Count"), Value(1));
    const ObjectRef rule = condition(range("A1"), 1);
    call(rule, "Delete");
    EXPECT_EQ(get(conditions(range("A1:C3")), "Count"), Value(0));
    EXPECT_EQ(call_refused(rule, "Type"), error_1004) << "it has been deleted";
}

TEST_F(Likely, ConditionsCountReferencesFromTheActiveCell) {
    call(range("B5"), "Select");
    call(conditions(range("B2:B9")), "Add", {2, Missing{}, "=$A5>B4"});
    EXPECT_EQ(get(condition(range("B2"), 1), "Formula1"), Value("=$A2>B1"));
}

TEST_F(Sure, ConditionsKeepPrioritiesUnique) {
    const ObjectRef all = conditions(range("A1"));
    for (const char* limit : {"1", "2", "3"}) call(all, "Add", {1, 5, limit});
    call(condition(range("A1"), 3), "SetFirstPriority");
    std::string order;
    for (const int i : {1, 2, 3}) {
        const ObjectRef rule = condition(range("A1"), i);
        EXPECT_EQ(get(rule, "Priority"), Value(i));
        order += to_text(get(rule, "Formula1"));
    }
    EXPECT_EQ(order, "=3=1=2");
}

TEST_F(Likely, ConditionsFormatOverTheCells) {
    const ObjectRef rule = to_object(call(conditions(range("A1")), "Add", {10}));
    EXPECT_EQ(get(rule, "Formula1"), Value("=LEN(TRIM(A1))=0"));
    put(object(rule, "Interior"), "Color", 65535);
    put(object(rule, "Font"), "Bold", true);
    put(rule, "StopIfTrue", true);
    EXPECT_EQ(get(object(rule, "Interior"), "ColorIndex"), Value(6));
    EXPECT_EQ(get(object(rule, "Font"), "Bold"), Value(true));
    EXPECT_EQ(get(object(rule, "Font"), "Size"), Value(Null{}));
    put(object(rule, "Interior"), "ColorIndex", xlNone);
    EXPECT_EQ(get(object(rule, "Interior"), "Color"), Value(Null{}));
    EXPECT_EQ(get(interior(range("A1")), "ColorIndex"), Value(xlNone)) << "the cell's own fill is another matter";
}

TEST_F(Likely, ConditionsDrawThinLines) {
    const ObjectRef rule = to_object(call(conditions(range("A1")), "Add", {1, 5, "1"}));
    const ObjectRef lines = object(rule, "Borders");
    EXPECT_EQ(get(lines, "LineStyle"), Value(Null{}));
    put(object(lines, "Item", {xlBottom}), "ColorIndex", 3);
    EXPECT_EQ(get(object(lines, "Item", {xlEdgeBottom}), "LineStyle"), Value(xlContinuous));
    EXPECT_EQ(get(lines, "LineStyle"), Value(Null{})) << "the sides differ";
    put(lines, "LineStyle", xlDash);
    EXPECT_EQ(get(lines, "LineStyle"), Value(xlDash));
    EXPECT_EQ(refused(lines, "Weight", xlThick), error_1004);
    EXPECT_EQ(refused(lines, "LineStyle", xlDouble), error_1004);
    EXPECT_EQ(get(lines, "LineStyle"), Value(xlDash));
    EXPECT_EQ(call_refused(lines, "Item", {xlInsideVertical}), error_1004);
}

TEST_F(Sure, ConditionsRefuseWhatTheyCannotMake) {
    const ObjectRef all = conditions(range("A1"));
    EXPECT_EQ(call_refused(all, "Add", {1, 5, "=1+"}), error_1004);
    EXPECT_EQ(call_refused(all, "Add", {1, 9, "1"}), error_1004);
    EXPECT_EQ(call_refused(all, "Add", {1, xlBetween, "1"}), error_1004);
    EXPECT_EQ(call_refused(all, "Add", {3}), error_1004);
    EXPECT_EQ(call_refused(all, "Item", {1}), hresult::bad_index);
    call(sheet("Sheet1"), "Protect");
    EXPECT_EQ(call_refused(all, "Add", {1, 5, "1"}), error_1004);
    EXPECT_EQ(get(all, "Count"), Value(0));
}

}  // namespace
}  // namespace kestrune::contract
