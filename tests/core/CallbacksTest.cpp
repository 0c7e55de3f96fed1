#include "core/AddInTest.h"
#include "core/CommandTable.h"

namespace kestrune::core {
namespace {

using automation::Arguments;
using automation::Array;
using automation::call;
using automation::get;
using automation::Value;
using testing::ElementsAre;
using testing::IsEmpty;

// What the libraries can ask of the add-in, asked through the objects that it registered with them.
struct CallbacksTest : AddInTest {
    CallbacksTest() {
        watch("BRVBLib");
        watch("BRXLLib");
        start();
    }

    // The command array after the add-in has appended to it.
    Value appended(Value array) {
        Arguments arguments{std::move(array)};
        hot_keys()->invoke("AddDefaultMacroArray", automation::Call::Method, arguments);
        return arguments.positional.front();
    }
};

TEST_F(CallbacksTest, NameTheProduct) {
    EXPECT_EQ(get(*hot_keys(), "BRProductName"), Value("Kestrune"));
    EXPECT_EQ(get(*undo(), "BRProductName"), Value("Kestrune"));
}

TEST_F(CallbacksTest, AppendTheCommandsToAnArray) {
    Array other_products(Array::Bound{-3, 2});
    other_products.at(-3) = "first";
    other_products.at(-2) = 2;
    const struct {
        Value given;
        std::int32_t lower;
        std::int32_t before;
    } cases[] = {{Value(), 0, 0}, {Array(Array::Bound{5, 0}), 5, 0}, {other_products, -3, 2}};
    for (const auto& [given, lower, before] : cases) {
        const Value answer = appended(given);
        const Array* array = answer.array();
        ASSERT_NE(array, nullptr);
        EXPECT_EQ(array->bound(0), (Array::Bound{lower, before + 103}));
        for (std::int32_t i = lower; i < lower + before; ++i) EXPECT_EQ(array->at(i), given.array()->at(i));
        const Array* nineteen = array->at(lower + before + 19).array();
        ASSERT_NE(nineteen, nullptr);
        EXPECT_EQ(nineteen->bound(0), (Array::Bound{0, 7}));
        EXPECT_EQ(nineteen->at(0), Value("General Number SmartCycle"));
        EXPECT_EQ(nineteen->at(5), Value(""));
        EXPECT_EQ(nineteen->at(6), Value(0));
        // Names, descriptions, keys, groups, topics: as the library has them.
        const auto strings = automation::to_object(get(*automation::CreateObject("BRVBLib.iPublic"), "iString"));
        for (const Command& command : commands()) {
            const Array& row = *array->at(lower + before + command.number).array();
            for (std::int32_t text = 0; text < 5; ++text) {
                EXPECT_EQ(row.at(text), call(*strings, "Text", {10000 * text + 2000 + command.number}));
            }
        }
    }
    EXPECT_THAT(skipped, IsEmpty());
}

TEST_F(CallbacksTest, LeaveAloneWhatIsNoCommandArray) {
    const Array square({1, 2}, {1, 2});
    const Array full(Array::Bound{2147483600, 0});
    for (const Value& nobodys : {Value("text"), Value(5), Value(nullptr), Value(square), Value(full)}) {
        skipped.clear();
        EXPECT_EQ(appended(nobodys), nobodys);
        EXPECT_EQ(skipped.size(), 1U) << "the trace tells why";
    }
}

TEST_F(CallbacksTest, RunCommandsByNumber) {
    EXPECT_EQ(call(*hot_keys(), "RunMacro", {87}), Value(true));
    EXPECT_EQ(application->window->zoom, 105);
    EXPECT_EQ(call(*hot_keys(), "RunMacro", {"87"}), Value(true));
    EXPECT_EQ(call(*hot_keys(), "RunMacro", {103}), Value(true)) << "runs nothing";
    EXPECT_EQ(application->window->zoom, 110);
    application->ready = false;
    EXPECT_EQ(call(*hot_keys(), "RunMacro", {87}), Value(false));
    EXPECT_EQ(application->window->zoom, 110);
}

TEST_F(CallbacksTest, HandOnToTheLibraries) {
    Array keys(Array::Bound{0, 2});
    keys.at(0) = "Ctrl+Shift+4";
    for (const char* member : {"DisplayKeyArray", "DisplayMacroArray", "DisplayHotKeyArray"}) {
        const std::size_t shown = presenter.messages().size();
        call(*hot_keys(), member, {keys});
        ASSERT_EQ(presenter.messages().size(), shown + 1) << member;
        EXPECT_EQ(presenter.messages().back().caption, "Brannoch Kestrune");
        EXPECT_THAT(presenter.messages().back().text, testing::HasSubstr("Ctrl+Shift+4"));
    }
    log.clear();
    call(*hot_keys(), "UpdateCtrlEnter", {true, false});
    EXPECT_THAT(log, ElementsAre("BRXLLib.iAutoColor.UpdateCtrlEnter(True,False)"));
}

TEST_F(CallbacksTest, DoNothingWhereNothingIsToDo) {
    log.clear();
    call(*hot_keys(), "UpdateExamplesFile", {true});
    call(*undo(), "RunMacro", {"mPublic.Init"});
    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(presenter.messages(), IsEmpty());
}

TEST_F(CallbacksTest, KeepAutoColorFromTheDesignatedCyclesColours) {
    EXPECT_EQ(call(*undo(), "DoNotAutoColor", {0xFFFFFF}), Value(true)) << "one of the second colour cycle";
    for (const Value& other : {Value(0xFF0000), Value("white"), Value()}) {
        EXPECT_EQ(call(*undo(), "DoNotAutoColor", {other}), Value(false));
    }
}

TEST_F(CallbacksTest, ReadTheSettingsAgain) {
    run("87");
    call(*hot_keys(), "UpdateUserSettings");
    EXPECT_TRUE(run("88"));
    EXPECT_EQ(application->window->zoom, 100) << "the zoom interval is there again";
}

TEST_F(CallbacksTest, OutliveTheAddInInSilence) {
    const auto keys = hot_keys();
    const auto undoing = undo();
    global = nullptr;
    entry = nullptr;
    skipped.clear();
    EXPECT_EQ(call(*keys, "RunMacro", {87}), Value(false));
    EXPECT_EQ(call(*undoing, "DoNotAutoColor", {255}), Value(false));
    for (const char* member : {"DisplayKeyArray", "ShowSample"}) call(*keys, member, {"x"});
    call(*keys, "UpdateUserSettings");
    const Value entries = appended(Value());
    ASSERT_NE(entries.array(), nullptr);
    EXPECT_EQ(entries.array()->at(19).array()->at(0), Value("")) << "without the library no text is known";
    EXPECT_THAT(presenter.messages(), IsEmpty());
    EXPECT_EQ(application->window->zoom, 100);
}

}  // namespace
}  // namespace kestrune::core
