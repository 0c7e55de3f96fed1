#include <gmock/gmock.h>

#include <objbase.h>

#include <set>
#include <tuple>

#include "automation/Conversion.h"
#include "automation/Text.h"
#include "excel/Application.h"
#include "excel/CommandBarPopup.h"
#include "host/objects/HostSession.h"
#include "host/objects/bars/CommandBars.h"
#include "host_objects/FakeStore.h"
#include "windows/com/ClassFactory.h"
#include "windows/com/ComClasses.h"
#include "windows/com/ComPtr.h"
#include "windows/com/Unicode.h"
#include "windows/dll/BoxWatcher.h"
#include "windows/dll/Dll.h"
#include "windows/dll/KnownUser.h"

namespace kestrune::windows {
namespace {

using automation::Arguments;
using automation::Array;
using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::to_object;
using automation::Value;
using testing::ElementsAre;

struct Apartment {
    Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

// The registered add-in, loaded through COM as the companion workbook loads it.
struct AddIn : testing::Test {
    AddIn() { become_known_user(); }
    void start(const ObjectRef& application) {
        entry = create_com_object("KestruneXL.iPublic");
        EXPECT_EQ(to_object(call(*entry, "NewGlobal")), nullptr) << "before NewPublic";
        call(*entry, "NewPublic", {application, get(*application, "ActiveWorkbook")});
        global = to_object(call(*entry, "NewGlobal"));
        ASSERT_TRUE(global);
    }
    void expect_released() {
        global = nullptr;
        entry = nullptr;
        EXPECT_EQ(add_in.can_unload_now(), S_OK);
        EXPECT_EQ(general.can_unload_now(), S_OK);
        EXPECT_EQ(spreadsheet.can_unload_now(), S_OK);
    }
    [[nodiscard]] Value run(Value request) const { return call(*global, "RunMacro", {std::move(request)}); }

    Apartment apartment;
    Dll general{dll_path("BRVBLib")};
    Dll spreadsheet{dll_path("BRXLLib")};
    Dll add_in{dll_path("KestruneXL")};
    Registered general_registered{general};
    Registered spreadsheet_registered{spreadsheet};
    Registered add_in_registered{add_in};
    ObjectRef entry;
    ObjectRef global;
};

TEST_F(AddIn, RunsCommandsInAnExcelThatComServes) {
    const Dll host(dll_path("KestruneHost"));
    const Registered host_registered(host);
    ObjectRef application = create_com_object("KestruneHost.Application");
    call(*to_object(get(*application, "Workbooks")), "Add");
    start(application);
    ObjectRef other = to_object(call(*entry, "NewGlobal"));
    const auto cell = [&] { return excel::Range(to_object(get(*application, "ActiveCell"))); };
    const auto zoom = [&] { return excel::Application(application).ActiveWindow().Zoom(); };
    EXPECT_EQ(run("20"), Value(true));
    EXPECT_EQ(cell().NumberFormat(), Value("[$$-409]#,##0_);([$$-409]#,##0)"));
    EXPECT_EQ(run(20.3), Value(true));
    EXPECT_EQ(cell().NumberFormat(), Value("[$$-409]#,##0.00_);([$$-409]#,##0.00)"));
    EXPECT_EQ(run(87), Value(true));
    EXPECT_EQ(call(*other, "RunMacro", {"87"}), Value(true));
    EXPECT_EQ(zoom(), 110) << "both command objects act on one Excel";
    EXPECT_EQ(run("103"), Value(true)) << "nobody's command";

    std::filesystem::path lessons = add_in.path().parent_path() / "Lessons" / "";
    EXPECT_EQ(get(*global, "LessonPath"), Value(to_utf8(lessons.make_preferred().wstring())));

    for (const auto& [member, arguments, code] :
         {std::tuple{"RunMacro", Arguments{}, automation::hresult::not_optional},
          {"RunMacro", Arguments{"87", "87"}, automation::hresult::bad_argument_count},
          {"ApplySmartCycleStyle", Arguments{"one", 1, nullptr}, automation::hresult::type_mismatch},
          {"Nonsense", Arguments{}, automation::hresult::unknown_name}}) {
        try {
            call(*global, member, arguments);
            ADD_FAILURE() << member;
        } catch (const automation::AutomationError& error) {
            EXPECT_EQ(error.code(), code) << error.what();
        }
    }
    EXPECT_EQ(zoom(), 110);
    call(*to_object(get(*application, "ActiveWorkbook")), "Close", {false});
    EXPECT_EQ(run("87"), Value(false)) << "without a workbook no command may run";
    other = nullptr;
    application = nullptr;
    expect_released();
}

// An Excel of the test's own, whose files and macros the test makes up.
struct AddInInOwnHost : AddIn {
    AddInInOwnHost() {
        session->store = &store;
        session->open(std::make_unique<host::Workbook>()).add_sheet("Model");
    }

    host::FakeStore store;
    std::shared_ptr<host::HostSession> session = std::make_shared<host::HostSession>();
    std::vector<std::string> ran;
};

TEST_F(AddInInOwnHost, RunsTheMacrosOfTheExamplesWorkbook) {
    std::filesystem::path file = add_in.path().parent_path() / "Files" / "Kestrune Examples.xls";
    store.saves[to_utf8(file.make_preferred().wstring())] = 0;
    for (const char* macro : {"Init", "UpdateWorkbook"}) {
        session->macros.add("Kestrune Examples.xls", std::string("mPublic.") + macro, [this, macro](auto) {
            ran.emplace_back(macro);
            return Value();
        });
    }
    ObjectRef application = host::make_application(*session);
    const std::weak_ptr<automation::Object> excel = application;
    start(application);
    for (int i = 0; i < 2; ++i) call(*global, "ShowExamplesWorkbook");
    EXPECT_THAT(ran, ElementsAre("Init", "UpdateWorkbook"));
    EXPECT_EQ(excel::Application(application).ActiveWorkbook().Name(), "Kestrune Examples.xls");
    application = nullptr;
    expect_released();
    EXPECT_TRUE(excel.expired()) << "nobody holds Excel any more";
}

TEST_F(AddInInOwnHost, RunsEveryCommand) {
    // Their dialogs stay for a person, or for tests of the screen.
    const std::set<std::int32_t> with_dialogs{0, 1, 3, 4, 5, 6, 7, 8};
    constexpr std::int32_t commands = 103;
    BoxWatcher watcher(dll_path("command").replace_extension(".bmp"));
    ObjectRef application = host::make_application(*session);
    start(application);
    {
        const excel::Application excel(application);
        const auto cells = [&](const char* address) {
            return excel.ActiveWorkbook().Worksheets().Item(1).Range(address);
        };
        const auto state = [&] {
            return std::tuple(excel.ScreenUpdating(), excel.Calculation(),
                              automation::to_integer(get(*application, "CutCopyMode")));
        };
        for (const bool on_protected_sheet : {false, true}) {
            session->active()->model->sheet("Model")->protection().on = on_protected_sheet;
            for (std::int32_t number = 0; number < commands; ++number) {
                if (with_dialogs.contains(number)) continue;
                SCOPED_TRACE(std::to_string(number) + (on_protected_sheet ? " on a protected sheet" : ""));
                if (!on_protected_sheet) {
                    cells("B1:E9").Formula("=A1*1.05");
                    cells("A1:A9").Value(2024);
                }
                cells("A1:E9").Select();
                const auto before = state();
                Value answer;
                EXPECT_NO_THROW(answer = run(number));
                EXPECT_EQ(answer, Value(true));
                EXPECT_EQ(state(), before);
            }
        }
    }
    EXPECT_GT(watcher.stop().size(), 0U) << "some ask, or say what they did";
    application = nullptr;
    expect_released();
}

TEST_F(AddInInOwnHost, PutsCommandsOnMenusThatClicksRun) {
    ObjectRef application = host::make_application(*session);
    start(application);
    {
        const excel::Application excel(application);
        for (const char* macro : {"UpdateMenuPopup", "UpdateTogglesPopup", "UpdateCurrencyStyleTogglePopup",
                                  "UpdateMyColorToggle1Popup", "RunMacro"}) {
            session->macros.add({}, std::string("mDOM.") + macro, [this, excel, macro](auto) {
                const bool command = macro == std::string_view("RunMacro");
                return command ? run(excel.CommandBars().ActionControl().Parameter()) : call(*global, macro);
            });
        }
        call(*global, "CreateBRMenus");
        const auto click = [&](std::initializer_list<Value> path) {
            excel::CommandBarControls here = excel.CommandBars().Item("Worksheet Menu Bar").Controls();
            excel::CommandBarControl control;
            for (const Value& step : path) {
                control = here.Item(step);
                control.Execute();
                if (control.Type() == host::msoControlPopup) here = excel::CommandBarPopup(control.object()).Controls();
            }
            return control;
        };
        excel.ActiveWorkbook().Worksheets().Item(1).Range("B2:C3").Select();
        click({"Kestrune", "Format", "Currency", 3});
        EXPECT_EQ(excel.ActiveCell().NumberFormat(), Value("[$$-409]#,##0.00_);([$$-409]#,##0.00)"));
        // A color's face is a bitmap of Windows, PICTYPE 1.
        const auto color = click({"Kestrune", "Format", "My Color SmartCycles", 1, 1});
        EXPECT_EQ(get(*to_object(get(*color.object(), "Picture")), "Type"), Value(1));
        call(*global, "DeleteBRMenus");
        EXPECT_FALSE(excel.CommandBars().FindControl("Kestrune.Menu.20"));
        session->macros = {};
    }
    application = nullptr;
    session->command_bars.reset();
    expect_released();
}

TEST_F(AddInInOwnHost, SaysWhatItIsInBoxes) {
    ObjectRef application = host::make_application(*session);
    start(application);
    for (const auto& [member, title] : std::initializer_list<std::pair<const char*, const char*>>{
             {"AboutSmartCycles", "About SmartCycles"},
             {"AboutBRPaintbrush", "About BR Paintbrush"},
             {"AboutHidingAndUnhiding", "About Hiding and Unhiding"},
             {"AboutTrainingMenu", "About the BR Tutorial Menu"},
             {"ShowAboutBrannoch", "About Brannoch"}}) {
        BoxWatcher watcher(dll_path(member).replace_extension(".bmp"));
        call(*global, member);
        const std::vector<SeenBox> seen = watcher.stop();
        ASSERT_EQ(seen.size(), 1U) << member;
        EXPECT_EQ(seen.front().title, std::string("Brannoch Kestrune -- ") + title);
        EXPECT_EQ(seen.front().icon, "information");
    }
    application = nullptr;
    expect_released();
}

// Stands before a library and its hot keys, and keeps what is registered to be called back. Its other parts are its
// own: they must know each other's objects again.
class Keeper : public automation::Object {
  public:
    Keeper(ObjectRef real, ObjectRef& kept) : real_(std::move(real)), kept_(kept) {}
    Value invoke(std::string_view member, automation::Call kind, Arguments& arguments) override {
        if (automation::same_text(member, "RegisterCallback")) kept_ = to_object(arguments.positional.at(1));
        const Value answer = real_->invoke(member, kind, arguments);
        const auto* object = answer.if_is<ObjectRef>();
        const bool on_the_way = automation::same_text(member, "iHotKeys") || automation::same_text(member, "Registry");
        return on_the_way && object && *object ? Value(std::make_shared<Keeper>(*object, kept_)) : answer;
    }
    [[nodiscard]] std::string_view type_name() const override { return real_->type_name(); }

  private:
    ObjectRef real_;
    ObjectRef& kept_;
};

// Makes this process answer for a class as long as it lives.
class InPlaceOf {
  public:
    InPlaceOf(const wchar_t* prog_id, automation::ClassFactory create) {
        CLSID id{};
        EXPECT_EQ(CLSIDFromProgID(prog_id, &id), S_OK);
        ComPtr<IUnknown> factory;
        EXPECT_EQ(get_class_object(std::move(create), IID_IUnknown, reinterpret_cast<void**>(factory.GetAddressOf())),
                  S_OK);
        EXPECT_EQ(CoRegisterClassObject(id, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_), S_OK);
    }
    ~InPlaceOf() { CoRevokeClassObject(cookie_); }
    InPlaceOf(const InPlaceOf&) = delete;
    InPlaceOf& operator=(const InPlaceOf&) = delete;

  private:
    DWORD cookie_ = 0;
};

TEST_F(AddInInOwnHost, IsCalledBackByTheHotKeys) {
    ObjectRef hot_keys;
    {
        ObjectRef real = create_com_object("BRVBLib.iPublic");
        const InPlaceOf keeper(L"BRVBLib.iPublic", [&] { return std::make_shared<Keeper>(real, hot_keys); });
        ObjectRef application = host::make_application(*session);
        start(application);
        ASSERT_TRUE(hot_keys);
        EXPECT_EQ(get(*hot_keys, "BRProductName"), Value("Kestrune"));

        Array others(Array::Bound{-3, 2});
        others.at(-3) = "first";
        others.at(-2) = 2;
        Arguments arguments{others};
        hot_keys->invoke("AddDefaultMacroArray", automation::Call::Method, arguments);
        const Array* commands = arguments.positional.front().array();
        ASSERT_NE(commands, nullptr);
        EXPECT_EQ(commands->bound(0), (Array::Bound{-3, 105}));
        EXPECT_EQ(commands->at(-3), Value("first"));
        EXPECT_EQ(commands->at(-2), Value(2));
        const Array* currency = commands->at(-1 + 20).array();
        ASSERT_NE(currency, nullptr);
        EXPECT_EQ(currency->elements().size(), 7U);
        EXPECT_EQ(currency->at(0), Value("Currency SmartCycle"));

        EXPECT_EQ(call(*hot_keys, "RunMacro", {87}), Value(true));
        EXPECT_EQ(excel::Application(application).ActiveWindow().Zoom(), 105);
        hot_keys = nullptr;
        global = nullptr;
        entry = nullptr;
    }
    expect_released();
}

}  // namespace
}  // namespace kestrune::windows
