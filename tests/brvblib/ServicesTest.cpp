// Files, dates, sorting and the other small services, from the same source on Linux and, under Wine, on Windows.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "brvblib/LibraryTest.h"
#include "brvblib/Paths.h"
#include "brvblib/SystemServices.h"
#include "brvblib/TestFolder.h"

namespace kestrune::brvblib {
namespace {

namespace fs = std::filesystem;

using automation::Array;
using automation::AutomationError;
using automation::call;
using automation::Date;
using automation::Empty;
using automation::Error;
using automation::get;
using automation::Value;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct FakeDesktop : Desktop {
    void open(const std::string& target) const override {
        if (refuses) throw AutomationError(automation::hresult::exception, "Desktop", target + ": no program opens it");
        opened.push_back(target);
    }
    bool refuses = false;
    mutable std::vector<std::string> opened;
};

struct ServicesTest : LibraryTest {
    ServicesTest() {
        add_system_services(services);
        services.desktop = desktop;
        services.now = [] { return Date{46348.878530092594}; };
        load();
    }

    [[nodiscard]] std::string path(const char* name) const { return to_utf8(folder / name); }
    void put_file(const char* name) const { std::ofstream(folder / name) << name; }
    [[nodiscard]] std::set<std::string> files() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder)) names.insert(to_utf8(entry.path().filename()));
        return names;
    }

    TestFolder place;
    const fs::path& folder = place.path();
    std::shared_ptr<FakeDesktop> desktop = std::make_shared<FakeDesktop>();
};

TEST_F(ServicesTest, ShowsDatesAsEnglishDoes) {
    const struct {
        double serial;
        const char* text;
    } cases[] = {
        {46348.878530092594, "11/22/2026 9:05:05 PM"},
        {46348, "11/22/2026"},
        {0.5, "12:00:00 PM"},
        {0, "12:00:00 AM"},
        {1.25, "12/31/1899 6:00:00 AM"},
        {-1.25, "12/29/1899 6:00:00 AM"},
        {46348.0000057, "11/22/2026"},  // half a second is no second
    };
    for (const auto& c : cases) EXPECT_EQ(answer("iDate", "Text", Date{c.serial}), c.text);
    EXPECT_EQ(wrapper.present_time_text(), "11/22/2026 9:05:05 PM");
    EXPECT_EQ(wrapper.name_text(wrapper.present_time_text()), "11_22_2026_9_05_05_PM");
    EXPECT_THAT(answer("iDate", "Text", 3e6), StartsWith("<"));
    services.now = &local_now;
    load();
    const Value now = get(*part("iDate"), "Now");
    ASSERT_TRUE(now.if_is<Date>());
    EXPECT_GT(now.if_is<Date>()->serial, 46000);
}

TEST_F(ServicesTest, AddsIntervalsAsVisualBasicDoes) {
    const double january = 46053;  // 31 January 2026
    const struct {
        const char* interval;
        double count;
        double from;
        const char* text;
    } cases[] = {
        {"m", 1, january, "2/28/2026"},
        {"m", 25, january, "2/29/2028"},
        {"M", -2, january, "11/30/2025"},
        {"q", 1, january, "4/30/2026"},
        {"yyyy", 1, 45351, "2/28/2025"},
        {"d", 30, january, "3/2/2026"},
        {"ww", -1, january, "1/24/2026"},
        {"h", 25, january, "2/1/2026 1:00:00 AM"},
        {"n", -1, january, "1/30/2026 11:59:00 PM"},
        {"s", 86400, january, "2/1/2026"},
        {"m", 1.9, january, "2/28/2026"},  // the whole part counts
        {"d", -46054, january, "12/29/1899"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(answer("iDate", "Text", wrapper.date_add(c.interval, c.count, Date{c.from}).serial), c.text)
            << c.interval << " " << c.count;
    }
    for (const char* bad : {"", "month", "yy"}) {
        EXPECT_THAT(answer("iDate", "DateAdd", bad, 1, 0), HasSubstr("is no interval")) << bad;
    }
    for (const double far : {1e300, 1e6, -1e6}) {
        EXPECT_THAT(answer("iDate", "DateAdd", "yyyy", far, 46053), StartsWith("<iDate: ")) << far;
    }
}

TEST_F(ServicesTest, SortsAsExcelDoes) {
    const auto array = [](std::vector<Value> values) {
        Array made({1, static_cast<std::int32_t>(values.size())});
        made.elements() = std::move(values);
        return made;
    };
    const Value mixed = array({true, "b", Empty{}, 3, Date{2}, "A", "a", 1.5, Error{7}, false});
    EXPECT_EQ(wrapper.sorted(mixed), Value(array({1.5, Date{2}, 3, "A", "a", "b", false, true, Error{7}, Empty{}})));
    EXPECT_EQ(call(*part("iSort"), "Sorted", {mixed, true}),
              Value(array({Error{7}, true, false, "b", "A", "a", 3, Date{2}, 1.5, Empty{}})));
    EXPECT_EQ(wrapper.sorted(array({})), Value(array({})));
    EXPECT_THROW(static_cast<void>(wrapper.sorted("text")), AutomationError);
    EXPECT_THROW(static_cast<void>(wrapper.sorted(Array({1, 2}, {1, 2}))), AutomationError);
    EXPECT_THROW(static_cast<void>(wrapper.sorted(array({library}))), AutomationError);
}

TEST_F(ServicesTest, MakesIdentifiersThatDiffer) {
    std::set<std::string> guids;
    for (int i = 0; i < 100; ++i) guids.insert(answer("iGUID", "Create"));
    EXPECT_EQ(guids.size(), 100U);
    for (const std::string& guid : guids) {
        EXPECT_EQ(guid.size(), 38U);
        EXPECT_EQ(guid[15], '4') << guid;
        EXPECT_NE(std::string("89AB").find(guid[20]), std::string::npos) << guid;
    }
}

TEST_F(ServicesTest, LooksAfterFiles) {
    put_file("book.xml");
    EXPECT_TRUE(wrapper.file_exists(path("book.xml")));
    EXPECT_FALSE(wrapper.file_exists(path("other.xml")));
    EXPECT_FALSE(wrapper.file_exists(to_utf8(folder))) << "a folder is no file";
    EXPECT_EQ(answer("iFile", "FolderExists", to_utf8(folder)), "True");
    EXPECT_EQ(answer("iFile", "IsReadOnly", path("book.xml")), "False");
    EXPECT_EQ(answer("iFile", "IsReadOnly", path("other.xml")), "False") << "what is not there can be written";
    answer("iFile", "CreateFolder", path("a/b/c/"));
    EXPECT_EQ(answer("iFile", "FolderExists", path("a/b/c")), "True");
    EXPECT_EQ(answer("iFile", "CreateFolder", path("a/b/c")), "") << "it is there already";
    EXPECT_THAT(answer("iFile", "CreateFolder", path("book.xml")), StartsWith("<iFile: " + path("book.xml") + ": "));
    EXPECT_EQ(answer("iFile", "Join", answer("iFile", "FolderOf", path("book.xml")),
                     answer("iFile", "NameOf", path("book.xml"))),
              path("book.xml"));
    const std::string temporary = answer("iFile", "TemporaryName", ".xml");
    EXPECT_THAT(temporary, EndsWith(".xml"));
    EXPECT_FALSE(wrapper.file_exists(temporary));
    EXPECT_NE(temporary, answer("iFile", "TemporaryName", ".xml"));
}

TEST_F(ServicesTest, SetsFilesAside) {
    for (const char* aside : {"Prefs (unreadable).xml", "Prefs (unreadable 2).xml", "Prefs (unreadable 3).xml"}) {
        put_file("Prefs.xml");
        EXPECT_EQ(wrapper.set_aside(path("Prefs.xml"), "unreadable"), path(aside));
    }
    EXPECT_EQ(files(), (std::set<std::string>{"Prefs (unreadable).xml", "Prefs (unreadable 2).xml",
                                              "Prefs (unreadable 3).xml"}));
    EXPECT_EQ(answer("iFile", "SetAside", path("Prefs.xml"), "x"), "<iFile: " + path("Prefs.xml") + ": is not there>");
}

TEST_F(ServicesTest, AsksForFiles) {
    presenter.choose_next(path("in.xml"));
    EXPECT_EQ(wrapper.open_dialog("User Preferences File Import", "XML Files (*.xml)", "*.xml"), path("in.xml"));
    EXPECT_EQ(wrapper.save_dialog("Export", "XML Files (*.xml)", "*.xml", "Mine.xml"), std::nullopt);
    ASSERT_EQ(presenter.file_dialogs().size(), 2U);
    const auto& [open, save] = std::tie(presenter.file_dialogs()[0], presenter.file_dialogs()[1]);
    EXPECT_EQ(open.title, "Brannoch Kestrune -- User Preferences File Import");
    EXPECT_EQ(open.purpose, forms::FileDialog::Purpose::Open);
    EXPECT_EQ(open.pattern, "*.xml");
    EXPECT_EQ(save.purpose, forms::FileDialog::Purpose::Save);
    EXPECT_EQ(save.proposed, "Mine.xml");
}

TEST_F(ServicesTest, MakesTheDataFolderWhenItIsAskedFor) {
    const std::string data = path("maker/product/");
    services.data_folder = data;
    load();
    EXPECT_EQ(answer("iFile", "FolderExists", data), "False");
    EXPECT_EQ(wrapper.data_folder(), data);
    EXPECT_EQ(answer("iFile", "FolderExists", data), "True");
    // A file in the way: the path is known all the same, and what is saved there fails with its reason.
    fs::remove_all(folder / "maker");
    put_file("maker");
    EXPECT_EQ(wrapper.data_folder(), data);
    EXPECT_THAT(skipped, testing::ElementsAre(HasSubstr(data)));
    wrapper.xml_start_document("K", "1.0", "id");
    EXPECT_FALSE(wrapper.xml_save(data + "x.xml"));
    EXPECT_THAT(wrapper.xml_error(), StartsWith(data + "x.xml: "));
    services.data_folder.clear();
    load();
    EXPECT_EQ(answer("iProduct", "DataFolder"), "<iProduct.DataFolder: the user has no folder for data>");
}

TEST_F(ServicesTest, ShowsHelpOrSaysWhyNot) {
    services.installation_folder = path("");
    load();
    const std::string help = path("") + "Kestrune Help.html";
    wrapper.show_help();
    put_file("Kestrune Help.html");
    wrapper.show_help();
    desktop->refuses = true;
    wrapper.show_help();
    EXPECT_THAT(desktop->opened, testing::ElementsAre(help));
    ASSERT_EQ(presenter.messages().size(), 2U);
    EXPECT_THAT(presenter.messages()[0].text, EndsWith("Missing file: " + help));
    EXPECT_EQ(presenter.messages()[1].text, "The product help could not be opened: " + help + ": no program opens it");
    for (const auto& message : presenter.messages()) EXPECT_EQ(message.caption, "Brannoch Kestrune");
}

TEST_F(ServicesTest, OpensDocumentsAndPagesAndNothingElse) {
    put_file("lesson.xls");
    EXPECT_EQ(answer("iWinAPI", "Open", path("lesson.xls")), "");
    EXPECT_EQ(answer("iHTTP", "Open", "HTTPS://example.com/a?b=c"), "");
    EXPECT_EQ(answer("iWinAPI", "Open", path("none.xls")), "<iWinAPI.Open: " + path("none.xls") + ": is not there>");
    for (const char* bad :
         {"file:///etc/passwd", "calc.exe", "https://", "http://a b", "http://a\"b", "", "mailto:x"}) {
        EXPECT_THAT(answer("iHTTP", "Open", bad), HasSubstr("is no web address")) << bad;
    }
    EXPECT_THAT(desktop->opened, testing::ElementsAre(path("lesson.xls"), "HTTPS://example.com/a?b=c"));
    services.desktop = nullptr;
    load();
    EXPECT_EQ(answer("iHTTP", "Open", "https://example.com"),
              "<BRVBLib: the desktop cannot be reached from this program>");
}

TEST_F(ServicesTest, ATornCommandLeavesNoFrozenScreen) {
    struct Excel : automation::Served<Excel> {
        static const automation::MemberTable& members() {
            static constexpr auto rows = automation::member_rows(
                automation::property<&Excel::updating, &Excel::set_updating>("ScreenUpdating", 1));
            static constexpr automation::MemberTable table("Application", rows);
            return table;
        }
        [[nodiscard]] bool updating() const { return on; }
        void set_updating(bool to) { on = to; }
        bool on = true;
    };
    const auto excel = std::make_shared<Excel>();
    {
        register_library(services);
        const auto torn = automation::CreateObject("BRVBLib.iPublic");
        call(*torn, "SetApplication", {excel});
        const auto product = automation::to_object(get(*torn, "iProduct"));
        for (int depth = 0; depth < 2; ++depth) call(*product, "CommandBracket", {false, "Kestrune"});
        EXPECT_FALSE(excel->on);
    }
    EXPECT_TRUE(excel->on);
}

}  // namespace
}  // namespace kestrune::brvblib
