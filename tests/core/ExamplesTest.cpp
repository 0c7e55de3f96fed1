#include "core/AddInTest.h"
#include "core/CommandTable.h"
#include "excel/Application.h"
#include "host/objects/HostSession.h"
#include "host_objects/FakeStore.h"

namespace kestrune::core {
namespace {

using automation::call;
using automation::Value;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view file_name = "Kestrune Examples.xls";

// The add-in in the embedded host, installed in a folder whose files folder may hold the examples workbook.
struct ExamplesTest : AddInTest {
    explicit ExamplesTest(std::string folder = "/opt/kestrune") : installed_in(std::move(folder)) {
        session.store = &store;
        session.open(std::make_unique<host::Workbook>()).add_sheet("Model");
        excel = excel::Application(host::make_application(session));
        register_add_in(presenter, trace, installed_in);
        for (const char* macro : {"Init", "UpdateWorkbook"}) {
            session.macros.add(std::string(file_name), std::string("mPublic.") + macro, [this, macro](auto arguments) {
                ran.push_back(macro);
                EXPECT_TRUE(arguments.empty());
                return Value();
            });
        }
    }

    // The add-in lets go of the host, which ends first.
    ~ExamplesTest() override { entry = nullptr; }

    void start_in_host() {
        watch("BRVBLib");
        entry = create_public();
        call(*entry, "NewPublic", {excel.object(), add_in_workbook});
        global = automation::to_object(call(*entry, "NewGlobal"));
    }
    void install_examples() { store.saves[installed_in + "/Files/Kestrune Examples.xls"] = 0; }
    // Says in the registry of product values whether this start shows the examples.
    void show_at_start(bool show) {
        brvblib::register_library({.trace = trace,
                                   .presenter = presenter,
                                   .products = std::make_shared<brvblib::StatedValues>(
                                       brvblib::StatedValues::Values{{"ShowExamples", show}})});
    }
    std::string selection() {
        const excel::Range range(excel.Selection());
        return range.Worksheet().Name() + "!" + range.Address();
    }

    std::string installed_in;
    host::FakeStore store;
    host::HostSession session;
    excel::Application excel;
    std::vector<std::string> ran;  // macros of the examples workbook
};

TEST_F(ExamplesTest, OpenAtTheStartThatAsksForThem) {
    install_examples();
    start_in_host();
    EXPECT_EQ(session.workbooks().size(), 1U) << "not asked for";
    entry = nullptr;
    show_at_start(true);
    start_in_host();
    EXPECT_EQ(excel.ActiveWorkbook().Name(), file_name);
    EXPECT_THAT(ran, ElementsAre("Init"));
    call(*global, "ShowExamplesWorkbook");
    EXPECT_THAT(ran, ElementsAre("Init", "UpdateWorkbook")) << "it was open already";
    EXPECT_EQ(session.workbooks().size(), 2U);
    EXPECT_THAT(presenter.messages(), IsEmpty());
}

TEST_F(ExamplesTest, TellWhenTheyAreNotThere) {
    show_at_start(true);
    start_in_host();
    ASSERT_EQ(presenter.messages().size(), 1U);
    const forms::Message& message = presenter.messages().front();
    EXPECT_THAT(message.text, testing::EndsWith(file_name));
    EXPECT_GT(message.text.size(), file_name.size()) << "a text stands before the name";
    EXPECT_EQ(message.caption, "Brannoch Kestrune");
    EXPECT_EQ(message.buttons, 0);
    EXPECT_THAT(ran, IsEmpty()) << "no macro ran";
    EXPECT_EQ(call(*global, "RunMacro", {"98"}), Value(true)) << "the add-in is loaded all the same";
}

TEST_F(ExamplesTest, GoToTheStartOfATopic) {
    install_examples();
    start_in_host();
    const auto show = [&](const char* topic) { call(*hot_keys(), "ShowSample", {topic}); };
    show("");
    const excel::Workbook examples = excel.ActiveWorkbook();
    ASSERT_EQ(examples.Name(), file_name);
    examples.Names().Add("bbr.kestrune.SmartCycles.start.ebr", "=Second!$C$4:$D$5");
    excel.Workbooks().Item(1).Activate();
    ran.clear();
    show("SmartCycles");
    EXPECT_EQ(selection(), "Second!$C$4:$D$5");
    EXPECT_THAT(ran, ElementsAre("UpdateWorkbook"));
    examples.Worksheets().Item("First").Activate();
    show("Nothing of the kind");
    EXPECT_EQ(selection(), "First!$A$1") << "an unknown topic leads nowhere";
    EXPECT_THAT(presenter.messages(), IsEmpty());
}

TEST_F(ExamplesTest, HaveAStartForEveryTopicOfACommand) {
    install_examples();
    start_in_host();
    const auto strings =
        automation::to_object(automation::get(*automation::CreateObject("BRVBLib.iPublic"), "iString"));
    call(*hot_keys(), "ShowSample", {""});
    const excel::Workbook examples = excel.ActiveWorkbook();
    for (const Command& command : commands()) {
        const std::string topic = automation::to_text(call(*strings, "Text", {42000 + command.number}));
        const std::string cell = "$B$" + std::to_string(command.number + 2);
        // The topic must make a name that Excel takes.
        examples.Names().Add("bbr.kestrune." + topic + ".start.ebr", "=Second!" + cell);
        call(*hot_keys(), "ShowSample", {topic});
        EXPECT_EQ(selection(), "Second!" + cell) << topic;
    }
}

TEST_F(ExamplesTest, AreNamedInFull) {
    start_in_host();
    EXPECT_EQ(automation::get(*hot_keys(), "SamplesFileFullName"), Value("/opt/kestrune/Files/Kestrune Examples.xls"));
}

struct FoldersTest : AddInTest {
    std::string lessons(const std::string& installed_in, Value stated) {
        brvblib::register_library({.trace = trace,
                                   .presenter = presenter,
                                   .products = std::make_shared<brvblib::StatedValues>(
                                       brvblib::StatedValues::Values{{"LessonPath", std::move(stated)}})});
        register_add_in(presenter, trace, installed_in);
        start();
        return automation::to_text(automation::get(*global, "LessonPath"));
    }
};

TEST_F(FoldersTest, LessonsLieWhereTheProductValueSaysOrInTheInstallation) {
    const struct {
        const char* installed_in;
        Value stated;
        const char* lessons;
    } cases[] = {
        {R"(C:\Program Files\Kestrune)", {}, R"(C:\Program Files\Kestrune\Lessons\)"},
        {R"(C:\Program Files\Kestrune)", "", R"(C:\Program Files\Kestrune\Lessons\)"},
        {R"(C:\Program Files\Kestrune)", 5, R"(C:\Program Files\Kestrune\Lessons\)"},
        {R"(C:\Program Files\Kestrune)", R"(D:\Course)", R"(D:\Course\)"},
        {R"(C:\Program Files\Kestrune)", R"(D:\Course\)", R"(D:\Course\)"},
        {"/opt/kestrune", {}, "/opt/kestrune/Lessons/"},
        {"/opt/kestrune/", "/srv/lessons", "/srv/lessons/"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(lessons(row.installed_in, row.stated), row.lessons) << row.installed_in;
    }
}

}  // namespace
}  // namespace kestrune::core
