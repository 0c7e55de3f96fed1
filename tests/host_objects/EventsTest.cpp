#include <gmock/gmock.h>

#include "automation/Events.h"
#include "host_objects/HostFixture.h"

namespace kestrune::host {
namespace {

using testing::ElementsAre;

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

TEST_F(EventsTest, FilesAreToldAsOpened) {
    auto file = std::make_unique<Workbook>();
    file->name = "Other.xlsx";
    file->path = "/models";
    file->add_sheet("Data");
    session.open(std::move(file));
    EXPECT_THAT(take(),
                ElementsAre("WorkbookOpen Other.xlsx", "WorkbookDeactivate Model.xlsx", "WorkbookActivate Other.xlsx"));
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
