// Which settings are in use: at a start, after a change of the file, and by the dialogs that exchange files.
#include "settings/DefaultCycles.h"
#include "settings/LiveSettings.h"
#include "settings/PreferencesExchange.h"
#include "settings/PreferencesTest.h"
#include "settings/SettingsText.h"
#include "settings/mReadWrite.h"

namespace kestrune::settings {
namespace {

using core::Text;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const char* own_name = "UserPreferences.xml";

struct LiveSettingsTest : PreferencesTest {
    [[nodiscard]] std::string text(Text number) const { return shared.general().message(number); }
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> list;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            list.push_back(text_of(entry.path().filename()));
        }
        return list;
    }
    // Settings that differ from the defaults, in a file.
    std::string changed_file(const char* name, std::int32_t zoom) {
        const auto settings = defaults();
        settings->ZoomInterval = zoom;
        settings->InputColor = 0x123456;
        EXPECT_TRUE(SaveUserPreferences(shared, *settings, path(name)));
        return bytes(name);
    }
    [[nodiscard]] std::shared_ptr<cUserSettings> defaults() const {
        auto settings = std::make_shared<cUserSettings>();
        settings->LoadDefaults(default_sources(shared));
        return settings;
    }
    [[nodiscard]] std::int32_t color_in_use() const {
        return automation::to_integer(automation::get(*shared.spreadsheet().iAutoColor(), "InputColor"));
    }
};

TEST_F(LiveSettingsTest, AStartTakesTheUsersFile) {
    const std::string file = changed_file(own_name, 25);
    load_settings(shared, true);
    EXPECT_EQ(shared.settings().ZoomInterval, 25);
    EXPECT_EQ(color_in_use(), 0x123456) << "AutoColor works by it";
    EXPECT_EQ(bytes(own_name), file);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(LiveSettingsTest, AStartReplacesWhatIsMissingOrUnreadableAndLosesNothing) {
    load_settings(shared, false);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(lines_of(*load_preferences(shared, own_path())), lines_of(shared.settings()));
    const std::string fresh = bytes(own_name);

    for (const char* old : {"<Kestrune", ""}) {
        put_file(own_name, old);
        load_settings(shared, true);
        EXPECT_THAT(messages(), ElementsAre(text(Text::PreferencesReplaced)));
        EXPECT_EQ(presenter.messages().back().buttons, forms::vbOKOnly);
        EXPECT_EQ(bytes(own_name), fresh);
    }
    EXPECT_THAT(names(), UnorderedElementsAre(own_name, "UserPreferences (unreadable).xml",
                                              "UserPreferences (unreadable 2).xml"));
    EXPECT_EQ(bytes("UserPreferences (unreadable).xml"), "<Kestrune");

    std::filesystem::remove(folder / own_name);
    std::filesystem::create_directory(folder / own_name);
    load_settings(shared, true);
    EXPECT_EQ(shared.settings().ZoomInterval, 5) << "the defaults are in use though they cannot be saved";
    EXPECT_THAT(skipped.back(), HasSubstr("is a folder"));
}

// As on a computer whose XML parser was uninstalled.
TEST_F(LiveSettingsTest, AFileThatNothingCanReadIsLeftAlone) {
    struct NoParser : brvblib::XmlParser {
        [[nodiscard]] brvblib::XmlElementRef parse(std::string_view) const override {
            throw automation::AutomationError(automation::hresult::class_not_registered, "iXML", "no parser\r\n");
        }
    };
    const std::string file = changed_file(own_name, 25);
    brvblib::Services services{.trace = trace, .presenter = presenter, .data_folder = text_of(folder) + "/"};
    brvblib::add_system_services(services);
    services.xml = std::make_shared<NoParser>();
    brvblib::register_library(std::move(services));
    shared.general_library = std::make_shared<core::diBRVBLib>(trace);
    ASSERT_TRUE(shared.general_library->Create());
    load_settings(shared, true);
    EXPECT_EQ(shared.settings().ZoomInterval, 5);
    EXPECT_THAT(messages(), ElementsAre(text(Text::PreferencesReplaced)));
    EXPECT_EQ(bytes(own_name), file);
    EXPECT_THAT(names(), ElementsAre(own_name));
    EXPECT_THAT(skipped, Contains(testing::EndsWith(own_path() + ": no parser")));
}

TEST_F(LiveSettingsTest, AFileElsewhereStandsInForTheUsersOwn) {
    core::SharedState other(presenter, trace, {}, path("mine.xml"));
    other.general_library = shared.general_library;
    other.spreadsheet_library = shared.spreadsheet_library;
    changed_file("mine.xml", 30);
    load_settings(other, true);
    EXPECT_EQ(other.settings().ZoomInterval, 30);
    other.settings().ZoomInterval = 40;
    EXPECT_TRUE(SaveUserPreferences(other, other.settings()));
    EXPECT_EQ(load_preferences(shared, path("mine.xml"))->ZoomInterval, 40);
    EXPECT_THAT(names(), ElementsAre("mine.xml"));
}

TEST_F(LiveSettingsTest, AChangedFileIsTakenWithoutARestartUnlessItCannotBeRead) {
    load_settings(shared, false);
    changed_file(own_name, 35);
    reload_settings(shared);
    EXPECT_EQ(shared.settings().ZoomInterval, 35);
    EXPECT_EQ(color_in_use(), 0x123456);
    put_file(own_name, "half a f");
    reload_settings(shared);
    EXPECT_EQ(shared.settings().ZoomInterval, 35);
    EXPECT_EQ(bytes(own_name), "half a f") << "it may still be being written";
    std::filesystem::remove(folder / own_name);
    reload_settings(shared);
    EXPECT_EQ(shared.settings().ZoomInterval, 35);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(LiveSettingsTest, AnImportAsksReadsAndTells) {
    EXPECT_EQ(ImportUserPreferences(shared), nullptr) << "nobody picked a file";
    const forms::FileDialog& dialog = presenter.file_dialogs().back();
    EXPECT_EQ(dialog.title, "Brannoch Kestrune -- User Preferences File Import");
    EXPECT_EQ(dialog.filter, "XML Files (*.xml)");
    EXPECT_EQ(dialog.pattern, "*.xml");
    EXPECT_THAT(messages(), IsEmpty());

    changed_file("theirs.xml", 50);
    presenter.choose_next(path("theirs.xml"));
    presenter.answer_next(forms::vbCancel);
    EXPECT_EQ(ImportUserPreferences(shared), nullptr);
    const std::string question = text(Text::ImportReplacesSettings) + "  " + text(Text::ImportQuestion);
    EXPECT_THAT(messages(), ElementsAre(question));
    EXPECT_EQ(presenter.messages().back().buttons, forms::vbOKCancel + forms::vbExclamation);

    presenter.choose_next(path("theirs.xml"));
    const auto settings = ImportUserPreferences(shared);
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->ZoomInterval, 50);
    EXPECT_THAT(messages(), ElementsAre(question, text(Text::Imported)));
    EXPECT_EQ(presenter.messages().back().buttons, forms::vbInformation);

    put_file("theirs.xml", "<x/>");
    presenter.choose_next(path("theirs.xml"));
    EXPECT_EQ(ImportUserPreferences(shared), nullptr);
    EXPECT_THAT(messages(), ElementsAre(question, text(Text::ImportFailed)));
}

TEST_F(LiveSettingsTest, AnExportSavesAndTells) {
    const auto settings = defaults();
    EXPECT_FALSE(ExportUserPreferences(shared, *settings)) << "nobody picked a file";
    const forms::FileDialog& dialog = presenter.file_dialogs().back();
    EXPECT_EQ(dialog.title, "Brannoch Kestrune -- User Preferences File Export");
    EXPECT_EQ(dialog.proposed, "MyUserPreferences.xml");
    EXPECT_EQ(dialog.purpose, forms::FileDialog::Purpose::Save);
    EXPECT_THAT(messages(), IsEmpty());

    presenter.choose_next(path("mine.xml"));
    EXPECT_TRUE(ExportUserPreferences(shared, *settings));
    EXPECT_THAT(messages(), ElementsAre(text(Text::Exported)));
    EXPECT_EQ(lines_of(*load_preferences(shared, path("mine.xml"))), lines_of(*settings));

    presenter.choose_next(path("no/such/folder.xml"));
    EXPECT_FALSE(ExportUserPreferences(shared, *settings));
    EXPECT_THAT(messages(), ElementsAre(text(Text::ExportFailed)));
}

TEST_F(LiveSettingsTest, DefaultsAreRestoredWhenTheUserAgrees) {
    const auto settings = defaults();
    settings->ZoomInterval = 60;
    settings->SmartCopyDown.Operator = "LESS THAN";
    settings->Styles->Remove(1);
    presenter.answer_next(forms::vbCancel);
    EXPECT_FALSE(RestoreUserPreferences(shared, *settings));
    EXPECT_EQ(settings->ZoomInterval, 60);
    EXPECT_THAT(messages(), ElementsAre(text(Text::RestoreQuestion)));
    EXPECT_TRUE(RestoreUserPreferences(shared, *settings));
    EXPECT_EQ(lines_of(*settings), lines_of(*defaults()));
    EXPECT_EQ(settings->SmartCopyDown.Operator, "0");
    EXPECT_THAT(messages(), ElementsAre(text(Text::RestoreQuestion), text(Text::Restored)));
}

TEST_F(LiveSettingsTest, DefaultsFollowTheDayAndTheLibraries) {
    const auto settings = defaults();
    const std::string respected = shared.spreadsheet().auto_color_smart_cycle();
    EXPECT_EQ(settings->cycle(NumericCycle::MyColorToggle2)->Name, respected);
    // A colour that AutoColor gives itself would stay for ever on cells that get it.
    for (const double color : settings->cycle(NumericCycle::MyColorToggle2)->Settings) {
        core::for_each_setting(*settings, [&](std::string_view name, const auto& setting) {
            EXPECT_NE(static_cast<double>(setting), color) << name;
        });
    }
    for (const auto& [today, start, end] :
         {std::tuple{45350.9, 45322.0, 45657.0}, std::tuple{45657.99, 45322.0, 45657.0},
          std::tuple{45658.0, 45688.0, 46022.0}}) {
        settings->LoadDefaults({.today = automation::Date{today}});
        EXPECT_EQ(settings->SmartFillDates.StartDate, automation::Date{start}) << today;
        EXPECT_EQ(settings->SmartFillDates.EndDate, automation::Date{end}) << today;
    }
    for (const DefaultNumericCycle& row : default_numeric_cycles()) {
        const auto& cycle = settings->cycle(row.field);
        EXPECT_EQ(cycle->LookFors, cycle->Settings) << row.display_name;
        EXPECT_FALSE(cycle->Settings.empty()) << row.display_name;
    }
}

}  // namespace
}  // namespace kestrune::settings
