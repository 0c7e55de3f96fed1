#include <algorithm>

#include "core/AddInTest.h"
#include "core/CommandTable.h"

namespace kestrune::core {
namespace {

using automation::Value;
using testing::ElementsAre;

struct RequestCase {
    Value request;
    std::int32_t command;  // -1: none
    std::int32_t parameter = 0;
};

TEST(Request, IsANumberAndAParameter) {
    const RequestCase cases[] = {
        {"19.2", 19, 2},
        {"19", 19},
        {"102", 102},
        {"7.5.1", 7, 5},
        {"99.2.5", 99, 2},
        {"99.3.5", 99, 4},
        {"19.x", 19},
        {"19.", 19},
        {"19.3000000000", 19},
        {"20.-1", 20, -1},
        {" 19 ", 19},
        {"1e1", 10},
        {19, 19},
        {19.0, 19},
        {19.2, 19, 2},
        {automation::Date{19}, 19},
        {"0.5", 0, 5},
        {Value(), 0},
        {false, 0},
        {true, -1},
        {"103", -1},
        {"-1", -1},
        {-1, -1},
        {"", -1},
        {".5", -1, 5},
        {"x.5", -1, 5},
        {"nineteen", -1},
        {automation::Null{}, -1},
        {automation::Missing{}, -1},
    };
    const automation::Trace nobody;
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const auto resolved = resolve(cases[i].request, nobody);
        EXPECT_EQ(resolved.command ? resolved.command->number : -1, cases[i].command) << "case " << i;
        EXPECT_EQ(resolved.parameter, cases[i].parameter) << "case " << i;
    }
}

struct DispatcherTest : AddInTest {};

TEST_F(DispatcherTest, AsksFirstAndBracketsEveryRequestOnce) {
    watch("BRVBLib");
    watch("BRXLLib");
    start();
    const std::string asked = "BRXLLib.iWorkbook.MayRunCommand()";
    const std::string begun = "BRVBLib.iProduct.CommandBracket(False,Kestrune)";
    const std::string ended = "BRVBLib.iProduct.CommandBracket(True,Kestrune)";
    const auto calls_of = [&](Value request) {
        log.clear();
        EXPECT_TRUE(run(std::move(request)));
        std::erase(log, "BRVBLib.iConst.Text(0)");
        std::erase_if(log, [](const std::string& line) { return line.starts_with("ScreenUpdating"); });
        return log;
    };
    EXPECT_THAT(calls_of("87"), ElementsAre(asked, begun, "Zoom=105", ended));
    EXPECT_THAT(calls_of("87.3"), ElementsAre(asked, begun, "Zoom=110", ended)) << "takes no parameter";
    for (const Value& nobodys : {Value("103"), Value(-1), Value(true), Value("zoom")}) {
        EXPECT_THAT(calls_of(nobodys), ElementsAre(asked, begun, ended));
    }
    application->refused = {"ActiveWindow"};
    EXPECT_THAT(calls_of("87"), ElementsAre(asked, begun, ended)) << "a command that fails";
}

TEST_F(DispatcherTest, DoesNothingWhenNoCommandMayRun) {
    watch("BRVBLib");
    start();
    const auto refused = [&] {
        log.clear();
        return !run("87") && log.empty() && application->window->zoom == 100;
    };
    application->ready = false;
    EXPECT_TRUE(refused()) << "Excel is busy";
    application->ready = true;
    application->refused = {"Ready"};
    EXPECT_TRUE(refused()) << "Excel refuses to say";
    application->refused.clear();
    const auto workbook = std::exchange(application->workbook, nullptr);
    EXPECT_TRUE(refused()) << "no workbook is active";
    application->workbook = workbook;
    EXPECT_FALSE(refused());
}

TEST_F(DispatcherTest, PutsScreenUpdatingBackAsItWas) {
    start();
    ASSERT_TRUE(run("87"));
    EXPECT_THAT(log, ElementsAre("ScreenUpdating=false", "Zoom=105", "ScreenUpdating=true"));

    // A command inside a command leaves the screen to the outer one.
    application->window->on_zoom = [&] { run("98"); };
    log.clear();
    ASSERT_TRUE(run("87"));
    EXPECT_THAT(log, ElementsAre("ScreenUpdating=false", "Zoom=110", "ScreenUpdating=true"));
    EXPECT_FALSE(application->window->gridlines);

    // Off before, off afterwards, whatever the command did.
    application->screen_updating = false;
    application->window->on_zoom = [&] { application->screen_updating = true; };
    ASSERT_TRUE(run("87"));
    EXPECT_FALSE(application->screen_updating);
}

TEST_F(DispatcherTest, FailsOnlyWhereTheCallItselfIsWrong) {
    start();
    EXPECT_THROW(automation::call(*global, "RunMacro"), automation::AutomationError);
    EXPECT_THROW(automation::call(*global, "RunMacros", {"87"}), automation::AutomationError);
}

}  // namespace
}  // namespace kestrune::core
