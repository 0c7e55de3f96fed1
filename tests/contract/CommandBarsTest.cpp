#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Likely, CommandBarsTakeControlsAndLetGoOfThem) {
    const ObjectRef bars = object(application, "CommandBars");
    const ObjectRef menu = object(bars, "Item", {"Worksheet Menu Bar"});
    const ObjectRef controls = object(menu, "Controls");
    const double before = number(controls, "Count");
    EXPECT_EQ(get(object(controls, "Item", {1}), "BuiltIn"), Value(true));
    const ObjectRef popup =
        to_object(call(controls, "Add", Arguments{}.name("Type", 10).name("Before", 2).name("Temporary", true)));
    put(popup, "Caption", "Kestrun&e");
    EXPECT_EQ(number(popup, "Index"), 2);
    EXPECT_EQ(number(controls, "Count"), before + 1);
    EXPECT_EQ(get(object(controls, "Item", {"Kestrune"}), "Caption"), Value("Kestrun&e"));

    const ObjectRef button = to_object(call(object(popup, "Controls"), "Add"));
    EXPECT_EQ(number(button, "Type"), 1);
    EXPECT_EQ(number(button, "Id"), 1);
    for (const auto& [member, value] :
         std::initializer_list<std::pair<const char*, Value>>{{"Caption", "Smart &Copy"},
                                                              {"Tag", "copy"},
                                                              {"Parameter", "20.3"},
                                                              {"OnAction", "mDOM.RunMacro"},
                                                              {"BeginGroup", true},
                                                              {"Enabled", false},
                                                              {"State", -1},
                                                              {"FaceId", 59},
                                                              {"ShortcutText", "Ctrl+R"}}) {
        put(button, member, value);
        EXPECT_EQ(get(button, member), value) << member;
    }
    EXPECT_EQ(get(to_object(call(bars, "FindControl", Arguments{}.name("Tag", "copy"))), "Caption"),
              Value("Smart &Copy"));
    EXPECT_EQ(to_object(call(menu, "FindControl", Arguments{}.name("Tag", "copy"))), nullptr) << "not in popups";
    EXPECT_EQ(to_object(get(bars, "ActionControl")), nullptr);
    EXPECT_NE(call_refused(button, "Execute"), ok) << "it is greyed";
    put(button, "Enabled", true);
    EXPECT_NE(call_refused(button, "Execute"), ok) << "no workbook has the macro";
    put(button, "OnAction", "");
    EXPECT_EQ(call_refused(button, "Execute"), ok) << "a click on it does nothing";
    EXPECT_EQ(to_object(get(bars, "ActionControl")), nullptr);
    EXPECT_NE(call_refused(controls, "Item", {"Nobody's"}), ok);
    EXPECT_NE(call_refused(bars, "Item", {"Nobody's"}), ok);
    EXPECT_NE(call_refused(menu, "Delete"), ok) << "Excel's own bar";
    call(popup, "Delete");
    EXPECT_EQ(number(controls, "Count"), before);
    EXPECT_NE(call_refused(popup, "Caption"), ok);
}

}  // namespace
}  // namespace kestrune::contract
