#include "core/AddInTest.h"

namespace kestrune::core {
namespace {

using automation::Arguments;
using automation::Call;
using automation::Missing;
using automation::Value;
namespace hresult = automation::hresult;

struct BadCall {
    const char* member;
    Call kind;
    Arguments arguments;
    automation::HResult code;
};

struct BadInputTest : AddInTest {
    static void expect_refusals(automation::Object& object, const std::vector<BadCall>& calls) {
        for (const BadCall& bad : calls) {
            Arguments arguments = bad.arguments;
            try {
                object.invoke(bad.member, bad.kind, arguments);
                ADD_FAILURE() << bad.member << " with " << bad.arguments.positional.size() << " arguments went through";
            } catch (const automation::AutomationError& error) {
                EXPECT_EQ(error.code(), bad.code) << error.what();
                EXPECT_NE(error.description(), "");
            }
        }
    }
};

TEST_F(BadInputTest, EntryObjectsStayClosed) {
    entry = create_public();
    expect_refusals(
        *entry, {
                    {"NewPublic", Call::Method, {}, hresult::not_optional},
                    {"NewPublic", Call::Method, {application}, hresult::not_optional},
                    {"NewPublic", Call::Method, {Missing{}, add_in_workbook}, hresult::not_optional},
                    {"NewPublic", Call::Method, {1, 2}, hresult::object_required},
                    {"NewPublic", Call::Method, {"Application", add_in_workbook}, hresult::object_required},
                    {"NewPublic", Call::Method, {application, Value()}, hresult::object_required},
                    {"NewPublic", Call::Method, {application, add_in_workbook, 3}, hresult::bad_argument_count},
                    {"NewPublic", Call::Method, Arguments{application}.name("Book", nullptr), hresult::unknown_name},
                    {"NewPublic", Call::Put, {application, add_in_workbook}, hresult::member_not_found},
                    {"NewPublic", Call::Get, {application, add_in_workbook}, hresult::member_not_found},
                    {"NewGlobal", Call::Method, {1}, hresult::bad_argument_count},
                    {"OldGlobal", Call::Method, {}, hresult::unknown_name},
                    {"", Call::Get, {}, hresult::unknown_name},
                });
    EXPECT_EQ(automation::to_object(automation::call(*entry, "NewGlobal")), nullptr) << "nothing was opened";
    start();
    EXPECT_TRUE(run("87")) << "and it can be still";
}

TEST_F(BadInputTest, CommandObjectsGoOnWorking) {
    start();
    expect_refusals(*global,
                    {
                        {"RunMacro", Call::Method, {}, hresult::not_optional},
                        {"RunMacro", Call::Method, {"87", "87"}, hresult::bad_argument_count},
                        {"RunMacro", Call::Method, Arguments{}.name("Macro", "87"), hresult::unknown_name},
                        {"RunMacro", Call::Method, Arguments{"87"}.name("Request", "87"), hresult::bad_argument_count},
                        {"RunMacro", Call::Put, {"87"}, hresult::member_not_found},
                        {"RunMacro", Call::Get, {"87"}, hresult::member_not_found},
                        {"LessonPath", Call::Put, {"elsewhere"}, hresult::member_not_found},
                        {"ShowExamplesWorkbook", Call::Method, {"topic"}, hresult::bad_argument_count},
                        {"ApplySmartCycleStyle", Call::Method, {1, 1}, hresult::not_optional},
                        {"ApplySmartCycleStyle", Call::Method, {"one", 1, application}, hresult::type_mismatch},
                        {"ApplySmartCycleStyle", Call::Method, {3e10, 1, application}, hresult::overflow},
                        {"ApplySmartCycleStyle", Call::Method, {1, 1, 5}, hresult::object_required},
                        {"ApplySmartCycleStyle", Call::Method, {1, 1, application, 1}, hresult::bad_argument_count},
                        {"RunMacros", Call::Method, {"87"}, hresult::unknown_name},
                    });
    EXPECT_EQ(application->window->zoom, 100);
    EXPECT_TRUE(run("87"));
    EXPECT_EQ(application->window->zoom, 105);
    EXPECT_EQ(automation::call(*global, "ApplySmartCycleStyle", {1, 1, application}), Value()) << "no range, nothing";
}

TEST_F(BadInputTest, CallbacksRefuseWhatIsNoNumber) {
    watch("BRVBLib");
    start();
    expect_refusals(*hot_keys(), {
                                     {"RunMacro", Call::Method, {"eighty"}, hresult::type_mismatch},
                                     {"RunMacro", Call::Method, {}, hresult::not_optional},
                                     {"UpdateCtrlEnter", Call::Method, {true}, hresult::not_optional},
                                     {"AddDefaultMacroArray", Call::Method, {}, hresult::not_optional},
                                     {"BRProductName", Call::Put, {"Other"}, hresult::member_not_found},
                                 });
    EXPECT_EQ(application->window->zoom, 100);
}

}  // namespace
}  // namespace kestrune::core
