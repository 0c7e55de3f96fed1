#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Sure, RangesSpellAddresses) {
    const struct {
        const char* range;
        Arguments arguments;
        const char* text;
    } cases[] = {
        {"b2", {}, "$B$2"},
        {"B2:C5,E1", {}, "$B$2:$C$5,$E$1"},
        {"A:C", {}, "$A:$C"},
        {"3:3", {}, "$3:$3"},
        {"B2", {false, true}, "$B2"},
        {"B2:C5", {true, false}, "B$2:C$5"},
        {"B2:C5", {true, true, xlR1C1}, "R2C2:R5C3"},
        {"B2", {false, false, xlR1C1}, "R[1]C[1]"},
        {"A:B", {true, true, xlR1C1}, "C1:C2"},
        {"B2,D4", {true, true, xlA1, true}, "[Book1]Sheet1!$B$2,$D$4"},
    };
    for (const auto& [cells, arguments, text] : cases) EXPECT_EQ(get(range(cells), "Address", arguments), Value(text));
    EXPECT_EQ(get(range("C5"), "Address", Arguments{false, false, xlR1C1}.name("RelativeTo", range("B2"))),
              Value("R[3]C[1]"));
    EXPECT_EQ(get(object(sheet("Sheet2"), "Range", {"A1"}), "Address", Arguments{}.name("External", true)),
              Value("[Book1]Sheet2!$A$1"));
}

TEST_F(Sure, RangesLeadToOthers) {
    const ObjectRef base = range("B2:D5");
    const struct {
        const char* member;
        Arguments arguments;
        const char* text;
    } cases[] = {
        {"Cells", {1, 1}, "$B$2"},
        {"Cells", {2, "C"}, "$D$3"},
        {"Cells", {5}, "$C$3"},
        {"Cells", {13}, "$B$6"},
        {"Item", {0, 1}, "$B$1"},
        {"Offset", {1, -1}, "$A$3:$C$6"},
        {"Resize", {1}, "$B$2:$D$2"},
        {"Resize", {Missing{}, 5}, "$B$2:$F$5"},
        {"Rows", {2}, "$B$3:$D$3"},
        {"Rows", {"2:3"}, "$B$3:$D$4"},
        {"Columns", {"B"}, "$C$2:$C$5"},
        {"Columns", {"A:B"}, "$B$2:$C$5"},
        {"EntireRow", {}, "$2:$5"},
        {"EntireColumn", {}, "$B:$D"},
        {"Range", {"A1:B1"}, "$B$2:$C$2"},
    };
    for (const auto& [member, arguments, text] : cases) {
        EXPECT_EQ(address(object(base, member, arguments)), text) << member;
    }
    EXPECT_EQ(address(object(sheet("Sheet1"), "Range", {range("D9"), "B2"})), "$B$2:$D$9");
    EXPECT_EQ(address(object(sheet("Sheet1"), "Rows", {"2:4"})), "$2:$4");
    EXPECT_EQ(address(object(sheet("Sheet1"), "Columns", {3})), "$C:$C");
    for (const auto& [member, arguments] :
         {std::pair{"Offset", Arguments{-2, 0}}, {"Resize", {0}}, {"Cells", {0, -1}}, {"Rows", {"Rate"}}}) {
        EXPECT_NE(call_refused(base, member, arguments), ok) << member;
    }
    for (const char* text : {"Nowhere!A1", "ZZZZ1", "A0", "", "Sheet2!A1"}) {
        EXPECT_EQ(call_refused(sheet("Sheet1"), "Range", {text}), error_1004) << text;
    }
}

TEST_F(Sure, RangesCountTheirUnit) {
    EXPECT_EQ(get(range("B2:D5,F1"), "Count"), Value(13));
    EXPECT_EQ(get(object(range("B2:D5"), "Rows"), "Count"), Value(4));
    EXPECT_EQ(get(object(range("B2:D5"), "Columns"), "Count"), Value(3));
    EXPECT_EQ(get(object(range("B2,D4:E5"), "Areas"), "Count"), Value(2));
    EXPECT_EQ(address(object(range("B2,D4:E5"), "Areas", {2})), "$D$4:$E$5");
    const ObjectRef all = object(sheet("Sheet1"), "Cells");
    EXPECT_EQ(call_refused(all, "Count"), hresult::overflow);
    EXPECT_EQ(get(all, "CountLarge"), Value(17179869184.0));
}

TEST_F(Sure, RangesFindFilledCells) {
    put(range("B2:C4"), "Value", 1);
    put(range("D5"), "Value", 1);
    put(range("B8"), "Value", 1);
    EXPECT_EQ(address(object(range("C3"), "CurrentRegion")), "$B$2:$D$5") << "cells that touch at a corner belong";
    EXPECT_EQ(address(object(range("F9"), "CurrentRegion")), "$F$9");
    const struct {
        const char* from;
        std::int32_t direction;
        const char* to;
    } cases[] = {
        {"B2", xlDown, "$B$4"},    {"B4", xlDown, "$B$8"},      {"B8", xlDown, "$B$1048576"}, {"B8", xlUp, "$B$4"},
        {"A3", xlToRight, "$B$3"}, {"C3", xlToRight, "$XFD$3"}, {"C3", xlToLeft, "$B$3"},     {"A1", xlUp, "$A$1"},
    };
    for (const auto& [from, direction, to] : cases) {
        EXPECT_EQ(address(object(range(from), "End", {direction})), to) << from;
    }
    EXPECT_EQ(address(object(sheet("Sheet1"), "UsedRange")), "$B$2:$D$8");
}

TEST_F(Sure, RangesResolveNames) {
    const ObjectRef names = object(application, "Names");
    call(names, "Add", {"Rates", "=Sheet1!$B$2:$C$3"});
    call(names, "Add", {"Far", "=Sheet2!$A$1"});
    EXPECT_EQ(address(range("rates")), "$B$2:$C$3");
    EXPECT_EQ(address(range("Rates,E5")), "$B$2:$C$3,$E$5");
    EXPECT_EQ(address(object(application, "Range", {"Far"})), "$A$1");
    EXPECT_EQ(call_refused(sheet("Sheet1"), "Range", {"Far"}), error_1004) << "it is on another sheet";
}

TEST_F(Likely, SpecialCellsFindsWhatIsThere) {
    put(range("A1:A3"), "Value", 1);
    put(range("B1:B2"), "Value", "text");
    put(range("C2"), "Formula", "=A1");
    put(range("D1:D2"), "FormulaArray", "=A1:A2*2");
    put(font(range("F5")), "Bold", true);
    const auto found = [&](std::string_view cells, std::int32_t type, Arguments more = {}) {
        Arguments arguments{type};
        for (const Value& argument : more.positional) arguments.positional.push_back(argument);
        return address(automation::to_object(call(range(cells), "SpecialCells", arguments)));
    };
    constexpr std::int32_t constants = 2, formulas = -4123, blanks = 4, last = 11;
    EXPECT_EQ(found("A1:C9", constants), "$A$1:$A$3,$B$1:$B$2");
    EXPECT_EQ(found("A1", constants, {2}), "$B$1:$B$2") << "texts of the whole sheet, asked of a single cell";
    EXPECT_EQ(found("A:D", formulas), "$C$2,$D$1:$D$2");
    EXPECT_EQ(found("B1:C3", blanks), "$C$1,$B$3:$C$3");
    EXPECT_EQ(found("A2", last), "$F$5");
    EXPECT_EQ(call_refused(range("E1:E9"), "SpecialCells", {constants}), error_1004);
}

}  // namespace
}  // namespace kestrune::contract
