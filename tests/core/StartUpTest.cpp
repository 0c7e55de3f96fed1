#include <set>

#include "core/AddInTest.h"
#include "core/StartUp.h"
#include "core/iPublic.h"
#include "forms/Form.h"
#include "keys/KeyText.h"
#include "keys/OnKeyText.h"
#include "settings/UserFiles.h"
#include "settings/cUserSettings.h"

namespace kestrune::core {
namespace {

using automation::call;
using automation::ObjectRef;
using automation::to_object;
using automation::Value;
using testing::ElementsAre;
using testing::IsEmpty;

struct StartUpTest : AddInTest {
    StartUpTest() { brvblib::register_library(settings::with_user_files({.trace = trace, .presenter = presenter})); }
};

TEST_F(StartUpTest, GivesCommandObjectsThatShareOneState) {
    entry = create_public();
    EXPECT_EQ(to_object(call(*entry, "NewGlobal")), nullptr) << "before NewPublic";
    EXPECT_EQ(to_object(call(*entry, "NewPublic", {application, add_in_workbook})), entry);
    global = to_object(call(*entry, "NewGlobal"));
    const ObjectRef other = to_object(call(*entry, "NewGlobal"));
    ASSERT_TRUE(global && other);
    EXPECT_NE(global, other);
    EXPECT_EQ(call(*other, "RunMacro", {"87"}), Value(true));
    EXPECT_TRUE(run("87"));
    EXPECT_EQ(application->window->zoom, 110);
    EXPECT_THAT(presenter.messages(), IsEmpty());
    EXPECT_THAT(skipped, IsEmpty());
}

TEST_F(StartUpTest, OpensEachEntryObjectForItself) {
    start();
    const ObjectRef second = create_public();
    EXPECT_EQ(to_object(call(*second, "NewGlobal")), nullptr) << "another one was opened";
    EXPECT_EQ(to_object(call(*second, "NewPublic", {application, add_in_workbook})), second);
    const ObjectRef other = to_object(call(*second, "NewGlobal"));
    ASSERT_TRUE(other);
    EXPECT_EQ(call(*other, "RunMacro", {"87"}), Value(true));
    EXPECT_TRUE(run("87"));
    EXPECT_EQ(application->window->zoom, 110) << "they share one state";
}

TEST_F(StartUpTest, StartsOnce) {
    watch("BRVBLib");
    start();
    EXPECT_EQ(to_object(call(*entry, "NewPublic", {nullptr, nullptr})), entry);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_TRUE(run("87"));
}

TEST_F(StartUpTest, TellsWhichLibraryIsMissing) {
    const auto messages_without = [&](std::initializer_list<const char*> libraries) {
        for (const char* name : libraries) automation::unregister_class(name);
        const std::size_t shown = presenter.messages().size();
        start();
        EXPECT_FALSE(run("87"));
        EXPECT_EQ(call(*global, "ApplySmartCycleStyle", {1, 1, application}), Value()) << "fails silently";
        std::vector<std::string> texts;
        for (std::size_t i = shown; i < presenter.messages().size(); ++i) {
            const forms::Message& message = presenter.messages()[i];
            EXPECT_EQ(message.buttons, 16);
            EXPECT_EQ(message.caption, "Brannoch Kestrune");
            texts.push_back(message.text);
        }
        return texts;
    };
    EXPECT_THAT(messages_without({"BRXLLib.iPublic"}),
                ElementsAre("Unable to load the BR Excel Library from Kestrune.  Please contact technical support."));
    EXPECT_THAT(messages_without({"BRVBLib.iPublic"}),
                ElementsAre("Unable to load the Brannoch VB Library from Kestrune.  Please contact technical support."))
        << "both are missing now, and one message is enough";
}

TEST_F(StartUpTest, GoesStepByStep) {
    watch("BRVBLib");
    watch("BRXLLib");
    entry = create_public();
    call(*entry, "NewPublic", {application, add_in_workbook});
    EXPECT_THAT(log, testing::IsSupersetOf({"BRXLLib.iConst.InputColor()", "BRXLLib.iAutoColor.InputColor(16711680)",
                                            "BRXLLib.iAutoColor.bAutoColorOn(False)"}))
        << "the AutoColor settings come from the library's defaults and go to its service";
    std::erase_if(log, [](const std::string& line) {
        return line.starts_with("BRXLLib.iConst.") || line.starts_with("BRXLLib.iAutoColor.") ||
               line.starts_with("BRVBLib.iString.Text(");
    });
    EXPECT_THAT(log, ElementsAre("BRVBLib.iProduct.RegisterClient(KestruneXL,Kestrune,Brannoch Kestrune)",
                                 "BRXLLib.iProduct.RegisterClient(KestruneXL,Kestrune,Brannoch Kestrune)",
                                 "BRVBLib.iHotKeys.Registry.RegisterCallback(KestruneXL,object)",
                                 "BRXLLib.iUndoRedo.RegisterCallback(KestruneXL,object)",
                                 "BRVBLib.iProduct.ShowExamplesAtStart()", "BRVBLib.iConst.Text(0)",
                                 "BRVBLib.iHotKeys.Registry.Product(Kestrune)", "BRVBLib.iProduct.DataFolder()",
                                 "BRVBLib.iProduct.AllowsTraining()", "BRXLLib.SetApplication(object)",
                                 "BRVBLib.SetApplication(object)",
                                 "BRVBLib.iHotKeys.Registry.AddMacro(KestruneXL,BRUndo,Undo,Takes back what the last "
                                 "command changed.,,Undo)",
                                 "BRVBLib.iHotKeys.Registry.AddMacro(KestruneXL,BRRedo,Redo,Does again what undo took "
                                 "back.,Ctrl+Shift+Z,Undo)",
                                 "BRVBLib.iHotKeys.Registry.SetMacros(KestruneXL,companion,mDOM)",
                                 "BRVBLib.iHotKeys.Registry.Bind()"));
    EXPECT_THAT(skipped, IsEmpty());
}

TEST_F(StartUpTest, BindsItsKeysAndGivesEachBackOnce) {
    start();
    const auto bound = application->keys;
    EXPECT_EQ(bound.at("^+4"), "'companion'!'mDOM.RunMacro \"20\"'");
    EXPECT_EQ(bound.at("^+{[}"), "'companion'!'mDOM.RunMacro \"7\"'");
    EXPECT_EQ(bound.at("^+z"), "'companion'!mDOM.BRRedo");
    std::set<std::string> expected{"^+z"};
    const auto strings = to_object(automation::get(*automation::CreateObject("BRVBLib.iPublic"), "iString"));
    for (std::int32_t number = 0; number <= 102; ++number) {
        const std::string key = automation::to_text(call(*strings, "Text", {22000 + number}));
        if (!key.empty()) expected.insert(keys::on_key_text(keys::read_key(key).key));
    }
    for (const auto& [key, macro] : bound) EXPECT_EQ(expected.erase(key), 1U) << key << " runs " << macro;
    EXPECT_THAT(expected, IsEmpty()) << "no command's key is another's";
    entry = nullptr;
    EXPECT_THAT(application->keys, IsEmpty());
    EXPECT_EQ(application->given_back.size(), bound.size());
    for (const auto& [key, times] : application->given_back) EXPECT_EQ(times, 1) << key;
}

TEST_F(StartUpTest, ShowsTheHotKeyManager) {
    start();
    presenter.work_next([](forms::Form& form) {
        form.type(form["txtSearch"], "redo");
        EXPECT_THAT(form["lstCommands"].List(), testing::Contains(testing::StartsWith("Redo\tCtrl+Shift+Z")));
        form.click(form["btnCancel"]);
    });
    call(*global, "ShowHotKeyManager");
    EXPECT_THAT(presenter.forms(), testing::ElementsAre("Brannoch Kestrune -- Hot Key Manager"));
}

TEST_F(StartUpTest, TellsWhenTheHelpIsMissing) {
    start();
    call(*global, "ShowHelp");
    ASSERT_EQ(presenter.messages().size(), 1U);
    EXPECT_EQ(presenter.messages().front().caption, "Brannoch Kestrune");
    entry = nullptr;
    call(*global, "ShowHelp");
    EXPECT_EQ(presenter.messages().size(), 1U) << "without the add-in nothing happens";
}

TEST_F(StartUpTest, RegistersNobodyWithoutTheGeneralLibrary) {
    automation::unregister_class("BRVBLib.iPublic");
    watch("BRXLLib");
    start();
    EXPECT_THAT(callbacks, IsEmpty());
    EXPECT_EQ(presenter.messages().size(), 1U);
}

TEST_F(StartUpTest, ShowsTheTutorialWhereItIsInstalled) {
    const auto shows_tutorial = [&](brvblib::StatedValues::Values values) {
        brvblib::register_library({.trace = trace,
                                   .presenter = presenter,
                                   .products = std::make_shared<brvblib::StatedValues>(std::move(values))});
        const auto shared = std::make_shared<SharedState>(presenter, trace);
        iPublic add_in(shared);
        EXPECT_TRUE(start_up(shared));
        return shared->settings().TrainingModule;
    };
    EXPECT_TRUE(shows_tutorial({}));
    EXPECT_TRUE(shows_tutorial({{"TT", true}}));
    EXPECT_FALSE(shows_tutorial({{"TT", 0}}));
}

// An object that tells when it goes.
template <class T>
std::shared_ptr<T> watched(std::shared_ptr<T> object, fake::Log& log, const char* name) {
    T* const watched_object = object.get();
    return {watched_object, [object = std::move(object), &log, name](T*) mutable {
                object.reset();
                log.emplace_back(name);
            }};
}

TEST_F(StartUpTest, LetsGoOfEverythingInOrder) {
    const auto shared = std::make_shared<SharedState>(presenter, trace);
    auto add_in = std::make_shared<iPublic>(shared);
    call(*add_in, "NewPublic", {application, add_in_workbook});
    shared->xl = watched(shared->xl, log, "spreadsheet wrapper");
    shared->application = watched<automation::Object>(std::make_shared<fake::Window>(log), log, "application");
    shared->add_in_workbook = watched<automation::Object>(std::make_shared<fake::Window>(log), log, "workbook");
    shared->spreadsheet_library = watched(shared->spreadsheet_library, log, "spreadsheet library");
    shared->general_library = watched(shared->general_library, log, "general library");
    shared->user_settings = watched(shared->user_settings, log, "settings");
    shared->command_collection->push_back(
        watched<automation::Object>(std::make_shared<fake::Window>(log), log, "commands"));
    log.clear();
    add_in.reset();
    EXPECT_THAT(log, ElementsAre("spreadsheet wrapper", "application", "workbook", "spreadsheet library",
                                 "general library", "settings", "commands"));
    EXPECT_EQ(shared.use_count(), 1) << "no callback keeps the state";
}

TEST_F(StartUpTest, UnregistersWhenItIsOver) {
    watch("BRVBLib");
    watch("BRXLLib");
    start();
    const std::weak_ptr<fake::Application> excel = application;
    application = nullptr;
    add_in_workbook = nullptr;
    entry = nullptr;
    EXPECT_TRUE(excel.expired()) << "the libraries let go of Excel as well";
    EXPECT_THAT(log, ElementsAre("companion released", "BRXLLib.UnregisterClient(KestruneXL)", "model released",
                                 "BRVBLib.UnregisterClient(KestruneXL)"))
        << "Excel goes with its workbook when the last library lets go of it";
    EXPECT_FALSE(run("87")) << "a command object that outlives the add-in does nothing";
}

}  // namespace
}  // namespace kestrune::core
