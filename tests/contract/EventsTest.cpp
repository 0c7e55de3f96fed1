#include <utility>

#include "automation/Events.h"
#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Writes every event down: "SheetChange Sheet1 $A$1", "WorkbookActivate Book1".
struct SureEvents : ContractTest {
    std::unique_ptr<automation::Subscription> listen() {
        return automation::subscribe(application, [this](std::string_view event, Arguments& arguments) {
            std::string line(event);
            for (const Value& argument : arguments.positional) {
                if (!argument.is(Value::Kind::Object)) continue;
                const ObjectRef told = to_object(argument);
                const bool cells = told->type_name() == "Range";
                line += " " + to_text(get(told, cells ? "Address" : "Name"));
            }
            heard.push_back(line);
        });
    }
    std::vector<std::string> take() { return std::exchange(heard, {}); }

    std::vector<std::string> heard;
    std::unique_ptr<automation::Subscription> subscription = listen();
};

TEST_F(SureEvents, ChangesOfContentAreToldOnceAndWhole) {
    const ObjectRef cells = range("A1:B2,D4");
    put(range("C3"), "Value", 5);
    EXPECT_THAT(take(), ElementsAre("SheetChange Sheet1 $C$3"));
    put(cells, "Formula", "=C3*2");
    put(cells, "Value2", 1);
    put(cells, "FormulaR1C1", "=R3C3");
    EXPECT_THAT(take(), testing::Each("SheetChange Sheet1 $A$1:$B$2,$D$4"));
    put(range("F1:F3"), "FormulaArray", "=A1:A3*2");
    EXPECT_THAT(take(), ElementsAre("SheetChange Sheet1 $F$1:$F$3"));
    call(range("F1:F3"), "ClearContents");
    call(range("A1"), "Clear");
    EXPECT_THAT(take(), ElementsAre("SheetChange Sheet1 $F$1:$F$3", "SheetChange Sheet1 $A$1"));
    // Formats are no content, and what is refused has changed nothing.
    put(font(cells), "Color", 255);
    call(cells, "ClearFormats");
    EXPECT_EQ(refused(cells, "Formula", "=1+"), error_1004);
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(SureEvents, ListenersSeeTheFinishedChange) {
    Value seen;
    const auto second = automation::subscribe(application, [&](std::string_view, Arguments& arguments) {
        seen = get(object(to_object(arguments.positional[1]), "Font"), "Color");
    });
    put(font(range("A1")), "Color", 255);
    put(range("A1"), "Value", 1);
    EXPECT_EQ(to_double(seen), 255);
    call(range("A1"), "Clear");
    EXPECT_EQ(to_double(seen), 0) << "Clear takes the format away before it tells";
}

TEST_F(SureEvents, SelectingAndActivatingAreToldWhenTheyChangeSomething) {
    const ObjectRef output = sheet("Sheet2");
    call(range("B2"), "Select");
    call(range("B2"), "Select");
    call(sheet("Sheet1"), "Activate");
    EXPECT_THAT(take(), ElementsAre("SheetSelectionChange Sheet1 $B$2"));
    call(output, "Activate");
    EXPECT_THAT(take(), ElementsAre("SheetActivate Sheet2"));
    call(application, "Goto", {range("C3:C4")});
    EXPECT_THAT(take(), ElementsAre("SheetActivate Sheet1", "SheetSelectionChange Sheet1 $C$3:$C$4"));
    put(sheet("Sheet1"), "Visible", 0);
    EXPECT_THAT(take(), ElementsAre("SheetActivate Sheet2"));
}

TEST_F(SureEvents, ClosingIsToldBeforeAndAfter) {
    call(object(application, "Workbooks"), "Add");
    take();
    call(object(application, "ActiveWorkbook"), "Close", {false});
    EXPECT_THAT(take(), ElementsAre("WorkbookBeforeClose Book2", "WorkbookDeactivate Book2", "WorkbookActivate Book1"));
}

TEST_F(SureEvents, ListenersMayFailLeaveAndBeSwitchedOff) {
    int second = 0;
    const auto failing = automation::subscribe(application, [](std::string_view, Arguments&) { throw 1; });
    const auto after = automation::subscribe(application, [&](std::string_view, Arguments&) { ++second; });
    put(range("A1"), "Value", 1);
    EXPECT_EQ(second, 1) << "a listener that fails stops neither the write nor the others";
    EXPECT_EQ(to_double(get(range("A1"), "Value")), 1);
    put(application, "EnableEvents", false);
    put(range("A1"), "Value", 2);
    put(application, "EnableEvents", true);
    subscription.reset();
    put(range("A1"), "Value", 3);
    EXPECT_EQ(second, 2);
    EXPECT_THAT(heard, ElementsAre("SheetChange Sheet1 $A$1"));
}

TEST_F(SureEvents, WorkbooksComeAndGoInExcelsOrder) {
    call(object(application, "Workbooks"), "Add");
    EXPECT_THAT(take(), ElementsAre("NewWorkbook Book2", "WorkbookDeactivate Book1", "WorkbookActivate Book2"));
    const ObjectRef first = object(object(application, "Workbooks"), "Item", {"Book1"});
    call(object(object(first, "Worksheets"), "Item", {2}), "Activate");
    EXPECT_THAT(take(), ElementsAre("WorkbookDeactivate Book2", "WorkbookActivate Book1", "SheetActivate Sheet2"));
    const auto keeping = automation::subscribe(application, [](std::string_view event, Arguments& arguments) {
        if (event == "WorkbookBeforeClose") arguments.positional[1] = true;
    });
    call(first, "Close", {false});
    EXPECT_THAT(take(), ElementsAre("WorkbookBeforeClose Book1"));
    EXPECT_EQ(number(object(application, "Workbooks"), "Count"), 2);
}

}  // namespace
}  // namespace kestrune::contract
