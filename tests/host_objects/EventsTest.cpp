#include <gmock/gmock.h>

#include "automation/Events.h"
#include "host_objects/HostFixture.h"

namespace kestrune::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Writes every event down: "SheetChange Inputs $A$1", "WorkbookActivate Model.xlsx".
struct EventsTest : HostTest {
    std::unique_ptr<automation::Subscription> listen() {
        return automation::subscribe(application, [this](std::string_view event, Arguments& arguments) {
            std::string line(event);
            for (const Value& argument : arguments.positional) {
                if (!argument.is(Value::Kind::Object)) continue;
                const ObjectRef told = automation::to_object(argument);
                const bool cells = told->type_name() == "Range";
                line += " " + automation::to_text(get(told, cells ? "Address" : "Name"));
            }
            heard.push_back(line);
        });
    }
    std::vector<std::string> take() { return std::exchange(heard, {}); }

    std::vector<std::string> heard;
    std::unique_ptr<automation::Subscription> subscription = listen();
};

TEST_F(EventsTest, ChangesOfContentAreToldOnceAndWhole) {
    const ObjectRef cells = range("A1:B2,D4");
    put(range("C3"), "Value", 5);
    EXPECT_THAT(take(), ElementsAre("SheetChange Inputs $C$3"));
    put(cells, "Formula", "=C3*2");
    put(cells, "Value2", 1);
    put(cells, "FormulaR1C1", "=R3C3");
    EXPECT_THAT(take(), testing::Each("SheetChange Inputs $A$1:$B$2,$D$4"));
    put(range("F1:F3"), "FormulaArray", "=A1:A3*2");
    EXPECT_THAT(take(), ElementsAre("SheetChange Inputs $F$1:$F$3"));
    call(range("F1:F3"), "ClearContents");
    call(range("A1"), "Clear");
    EXPECT_THAT(take(), ElementsAre("SheetChange Inputs $F$1:$F$3", "SheetChange Inputs $A$1"));
    // Formats are no content, and what is refused has changed nothing.
    put(font(cells), "Color", 255);
    call(cells, "ClearFormats");
    EXPECT_EQ(refused(cells, "Formula", "=1+"), error_1004);
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(EventsTest, ListenersSeeTheFinishedChange) {
    Value seen;
    const auto second = automation::subscribe(application, [&](std::string_view, Arguments& arguments) {
        seen = get(object(automation::to_object(arguments.positional[1]), "Font"), "Color");
    });
    put(font(range("A1")), "Color", 255);
    put(range("A1"), "Value", 1);
    EXPECT_EQ(automation::to_double(seen), 255);
    call(range("A1"), "Clear");
    EXPECT_EQ(automation::to_double(seen), 0) << "Clear takes the format away before it tells";
}

TEST_F(EventsTest, SelectingAndActivatingAreToldWhenTheyChangeSomething) {
    const ObjectRef output = sheet("It's Output");
    call(range("B2"), "Select");
    call(range("B2"), "Select");
    call(sheet("Inputs"), "Activate");
    EXPECT_THAT(take(), ElementsAre("SheetSelectionChange Inputs $B$2"));
    call(output, "Activate");
    EXPECT_THAT(take(), ElementsAre("SheetActivate It's Output"));
    call(application, "Goto", {range("C3:C4")});
    EXPECT_THAT(take(), ElementsAre("SheetActivate Inputs", "SheetSelectionChange Inputs $C$3:$C$4"));
    put(sheet("Inputs"), "Visible", 0);
    EXPECT_THAT(take(), ElementsAre("SheetActivate It's Output"));
}

TEST_F(EventsTest, WorkbooksComeAndGoInExcelsOrder) {
    auto fresh = std::make_unique<Workbook>();
    fresh->name = "Book1";
    fresh->add_sheet("Sheet1");
    session.open(std::move(fresh));
    EXPECT_THAT(take(), ElementsAre("NewWorkbook Book1", "WorkbookDeactivate Model.xlsx", "WorkbookActivate Book1"));
    auto file = std::make_unique<Workbook>();
    file->name = "Other.xlsx";
    file->path = "/models";
    file->add_sheet("Data");
    session.open(std::move(file));
    EXPECT_THAT(take(),
                ElementsAre("WorkbookOpen Other.xlsx", "WorkbookDeactivate Book1", "WorkbookActivate Other.xlsx"));
    const ObjectRef model = object(object(application, "Workbooks"), "Item", {"Model.xlsx"});
    call(object(object(model, "Worksheets"), "Item", {2}), "Activate");
    EXPECT_THAT(take(), ElementsAre("WorkbookDeactivate Other.xlsx", "WorkbookActivate Model.xlsx",
                                    "SheetActivate It's Output"));
    const auto keeping = automation::subscribe(application, [](std::string_view event, Arguments& arguments) {
        if (event == "WorkbookBeforeClose") arguments.positional[1] = true;
    });
    call(model, "Close", {false});
    EXPECT_THAT(take(), ElementsAre("WorkbookBeforeClose Model.xlsx"));
    EXPECT_EQ(number(object(application, "Workbooks"), "Count"), 3);
}

TEST_F(EventsTest, ClosingIsToldBeforeAndAfter) {
    auto fresh = std::make_unique<Workbook>();
    fresh->name = "Book1";
    fresh->add_sheet("Sheet1");
    session.open(std::move(fresh));
    take();
    call(object(application, "ActiveWorkbook"), "Close", {false});
    EXPECT_THAT(take(),
                ElementsAre("WorkbookBeforeClose Book1", "WorkbookDeactivate Book1", "WorkbookActivate Model.xlsx"));
}

TEST_F(EventsTest, ListenersMayFailLeaveAndBeSwitchedOff) {
    int second = 0;
    const auto failing = automation::subscribe(application, [](std::string_view, Arguments&) { throw 1; });
    const auto after = automation::subscribe(application, [&](std::string_view, Arguments&) { ++second; });
    put(range("A1"), "Value", 1);
    EXPECT_EQ(second, 1) << "a listener that fails stops neither the write nor the others";
    EXPECT_EQ(automation::to_double(get(range("A1"), "Value")), 1);
    put(application, "EnableEvents", false);
    put(range("A1"), "Value", 2);
    put(application, "EnableEvents", true);
    subscription.reset();
    put(range("A1"), "Value", 3);
    EXPECT_EQ(second, 2);
    EXPECT_THAT(heard, ElementsAre("SheetChange Inputs $A$1"));
}

TEST_F(EventsTest, WhatAListenerCallsIsCounted) {
    subscription = automation::subscribe(application, [](std::string_view, Arguments& arguments) {
        (void)get(automation::to_object(arguments.positional[1]), "Address");
    });
    const ObjectRef cell = range("A1");
    const std::int64_t before = session.calls();
    put(cell, "Value", 1);
    EXPECT_EQ(session.calls() - before, 2);
}

TEST_F(EventsTest, LinksAreListedByPlace) {
    workbook->sheets()[0]->hyperlinks() = {
        {{1, 1, 1, 1}, "https://example.com/a", "", "Tip", "a"},
        {{3, 2, 4, 3}, "", "Inputs!A1", "", "there"},
    };
    put(range("B3"), "Value", "shown");
    const ObjectRef links = object(sheet("Inputs"), "Hyperlinks");
    EXPECT_EQ(number(links, "Count"), 2);
    const ObjectRef first = object(links, "Item", {1});
    EXPECT_EQ(get(first, "Address"), Value("https://example.com/a"));
    EXPECT_EQ(get(first, "ScreenTip"), Value("Tip"));
    const ObjectRef second = object(links, "Item", {2});
    EXPECT_EQ(get(second, "SubAddress"), Value("Inputs!A1"));
    EXPECT_EQ(get(second, "Name"), Value("Inputs!A1"));
    EXPECT_EQ(get(second, "TextToDisplay"), Value("shown"));
    EXPECT_EQ(address(object(second, "Range")), "$B$3:$C$4");
    EXPECT_EQ(number(object(range("C4:Z9"), "Hyperlinks"), "Count"), 1);
    EXPECT_EQ(number(object(range("D5,A2"), "Hyperlinks"), "Count"), 0);
    EXPECT_EQ(call_refused(links, "Item", {3}), automation::hresult::bad_index);
}

}  // namespace
}  // namespace kestrune::host
