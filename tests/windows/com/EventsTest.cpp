// Events over connection points: from our objects to another program's sinks, and from another program to us.
#include <gmock/gmock.h>
#include <ocidl.h>
#include <olectl.h>

#include "FakeDispatch.h"
#include "Sample.h"
#include "automation/AutomationError.h"
#include "windows/com/ComClient.h"
#include "windows/com/EventTable.h"
#include "windows/com/Module.h"
#include "windows/com/Objects.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {
namespace {

using automation::Arguments;
using testing::ElementsAre;

// Excel's application events, by their published numbers.
constexpr IID app_events = {0x00024413, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr DISPID sheet_change = 0x61C;
constexpr DISPID before_close = 0x622;

class Events : public testing::Test {
  protected:
    void TearDown() override {
        client.reset();
        container.Reset();
        EXPECT_THAT(speaker->listeners, testing::IsEmpty());
        speaker.reset();
        EXPECT_EQ(Module::count(), 0);
    }
    ComPtr<IConnectionPoint> point() {
        ComPtr<IConnectionPoint> found;
        EXPECT_EQ(container->FindConnectionPoint(app_events, &found), S_OK);
        return found;
    }
    // Raises an event and gives its arguments back.
    std::vector<Value> raise(std::string_view event, Arguments arguments) {
        speaker->raise(event, arguments);
        return arguments.positional;
    }

    std::shared_ptr<Speaker> speaker = std::make_shared<Speaker>();
    std::shared_ptr<ComClient> client = std::make_shared<ComClient>(dispatch_of(speaker).Get());
    ComPtr<IConnectionPointContainer> container = [this] {
        ComPtr<IConnectionPointContainer> found;
        EXPECT_EQ(client->dispatch()->QueryInterface(IID_PPV_ARGS(&found)), S_OK);
        return found;
    }();
};

TEST_F(Events, ArriveUntilTheSubscriptionEnds) {
    std::vector<std::string> heard;
    auto subscription = automation::subscribe(client, [&](std::string_view event, Arguments& arguments) {
        heard.push_back(std::string(event) + " " + automation::to_text(arguments.positional.at(0)));
        if (event == "WorkbookBeforeClose") arguments.positional.at(1) = true;
    });
    EXPECT_THAT(raise("SheetChange", {"Sheet1", "A1"}), ElementsAre(Value("Sheet1"), Value("A1")));
    EXPECT_THAT(raise("WorkbookBeforeClose", {"Book1", false}), ElementsAre(Value("Book1"), Value(true)));
    raise("NoEventOfExcels", {1});
    EXPECT_THAT(heard, ElementsAre("SheetChange Sheet1", "WorkbookBeforeClose Book1"));
    subscription.reset();
    raise("SheetChange", {"Sheet2", "A1"});
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(Events, AListenerMayLeaveWhileItHears) {
    int heard = 0;
    std::unique_ptr<automation::Subscription> subscription;
    subscription = automation::subscribe(client, [&](std::string_view, Arguments&) {
        ++heard;
        subscription.reset();
    });
    raise("NewWorkbook", {1});
    raise("NewWorkbook", {1});
    EXPECT_EQ(heard, 1);
}

TEST_F(Events, WhatAListenerThrowsStopsNobody) {
    int heard = 0;
    auto bad = automation::subscribe(client, [](std::string_view, Arguments&) { throw std::runtime_error("bad"); });
    auto good = automation::subscribe(client, [&](std::string_view, Arguments&) { ++heard; });
    raise("SheetActivate", {1});
    EXPECT_EQ(heard, 1);
}

TEST_F(Events, OtherProgramsSinksAreTold) {
    FakeDispatch sink;
    sink.answer = [](DISPPARAMS& parameters, VARIANT*, EXCEPINFO*) {
        if (V_VT(&parameters.rgvarg[0]) == (VT_BYREF | VT_BOOL)) *V_BOOLREF(&parameters.rgvarg[0]) = VARIANT_TRUE;
        return E_FAIL;
    };
    DWORD cookie = 0;
    ASSERT_EQ(point()->Advise(&sink, &cookie), S_OK);
    EXPECT_EQ(sink.references, 1);
    EXPECT_THAT(raise("WorkbookBeforeClose", {"Book1", false}), ElementsAre(Value("Book1"), Value(true)));
    raise("SheetChange", {"Sheet1", "A1"});
    ASSERT_EQ(sink.asked.size(), 2U);
    EXPECT_EQ(sink.asked[0].id, before_close);
    EXPECT_THAT(sink.asked[0].types, ElementsAre(VT_BYREF | VT_BOOL, VT_BSTR));
    EXPECT_EQ(sink.asked[1].id, sheet_change);
    EXPECT_EQ(sink.asked[1].flags, DISPATCH_METHOD);
    EXPECT_EQ(point()->Unadvise(cookie), S_OK);
    EXPECT_EQ(sink.references, 0);
    EXPECT_EQ(point()->Unadvise(cookie), CONNECT_E_NOCONNECTION);
    raise("SheetChange", {"Sheet1", "A1"});
    EXPECT_EQ(sink.asked.size(), 2U);
}

TEST_F(Events, ConnectionPointsFollowTheirRules) {
    ComPtr<IConnectionPoint> none;
    EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, &none), CONNECT_E_NOCONNECTION);
    IID id{};
    EXPECT_EQ(point()->GetConnectionInterface(&id), S_OK);
    EXPECT_TRUE(id == app_events);
    ComPtr<IConnectionPointContainer> back;
    EXPECT_EQ(point()->GetConnectionPointContainer(&back), S_OK);
    EXPECT_EQ(back.Get(), container.Get());
    DWORD cookie = 1;
    EXPECT_EQ(point()->Advise(nullptr, &cookie), E_POINTER);
    ComPtr<IStream> no_sink;
    CreateStreamOnHGlobal(nullptr, TRUE, &no_sink);
    EXPECT_EQ(point()->Advise(no_sink.Get(), &cookie), CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(cookie, 0U);
    ComPtr<IEnumConnectionPoints> points;
    ASSERT_EQ(container->EnumConnectionPoints(&points), S_OK);
    ComPtr<IConnectionPoint> first;
    EXPECT_EQ(points->Next(1, &first, nullptr), S_OK);
    EXPECT_EQ(first.Get(), point().Get());
    EXPECT_EQ(points->Next(1, &none, nullptr), S_FALSE);
    // A sink that was never disconnected is let go with the object.
    FakeDispatch forgotten;
    ASSERT_EQ(point()->Advise(&forgotten, &cookie), S_OK);
    first.Reset();
    points.Reset();
    back.Reset();
    container.Reset();
    client.reset();
    EXPECT_EQ(forgotten.references, 0);
}

TEST(EventsOfOthers, AnObjectWithoutAnyIsRefused) {
    FakeDispatch silent;
    const auto client = std::make_shared<ComClient>(&silent);
    try {
        automation::subscribe(client, [](std::string_view, Arguments&) {});
        FAIL() << "nothing failed";
    } catch (const automation::AutomationError& error) {
        EXPECT_EQ(error.code(), automation::hresult::member_not_found);
    }
}

}  // namespace
}  // namespace kestrune::windows
