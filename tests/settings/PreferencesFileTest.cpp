// The preferences file, from the same source on pugixml and, under Wine, on MSXML.
#include <algorithm>
#include <limits>

#include "settings/PreferencesTest.h"
#include "settings/RandomSettings.h"
#include "settings/SettingsText.h"
#include "settings/mReadWrite.h"

namespace kestrune::settings {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* golden = KESTRUNE_SOURCE_DIR "/tests/settings/golden/UserPreferences.xml";

struct PreferencesFileTest : PreferencesTest {
    PreferencesFileTest() { defaults->LoadDefaults(default_sources(shared)); }

    // The golden file with every occurrence of a text replaced; the text has to be there.
    static std::string edited(std::string bytes, std::string_view what, std::string_view by) {
        EXPECT_THAT(bytes, HasSubstr(std::string(what)));
        for (std::size_t at = 0; (at = bytes.find(what, at)) != std::string::npos; at += by.size()) {
            bytes.replace(at, what.size(), by);
        }
        return bytes;
    }
    static std::string without(const std::string& bytes, std::string_view from, std::string_view to) {
        const std::size_t begin = bytes.find(from);
        const std::size_t end = bytes.find(to, begin);
        EXPECT_NE(end, std::string::npos) << from;
        return bytes.substr(0, begin) + bytes.substr(end + to.size());
    }
    std::shared_ptr<cUserSettings> load(std::string_view bytes) {
        put_file("read.xml", bytes);
        return LoadUserPreferencesFile(shared, path("read.xml"));
    }
    // Why a file cannot be read, without its name.
    std::string refusal(std::string_view bytes) {
        put_file("read.xml", bytes);
        try {
            static_cast<void>(load_preferences(shared, path("read.xml")));
            return "read";
        } catch (const automation::AutomationError& error) {
            const std::string prefix = path("read.xml") + ": ";
            EXPECT_THAT(error.description(), AllOf(StartsWith(prefix), Not(HasSubstr("\n"))));
            return error.description().substr(std::min(prefix.size(), error.description().size()));
        }
    }

    const std::string file = bytes_of(golden);
    std::shared_ptr<cUserSettings> defaults = std::make_shared<cUserSettings>();
};

TEST_F(PreferencesFileTest, DefaultsAreTheSameFileOnEverySystem) {
    ASSERT_TRUE(SaveUserPreferences(shared, *defaults));
    EXPECT_EQ(bytes("UserPreferences.xml"), file);
    const auto again = LoadUserPreferencesFile(shared, golden);
    ASSERT_TRUE(again);
    EXPECT_EQ(lines_of(*again), lines_of(*defaults));
    EXPECT_EQ(again->SmartFillDates.EndDate, automation::Date{46387}) << "31 December 2026";
    EXPECT_THAT(skipped, IsEmpty());
}

TEST_F(PreferencesFileTest, AnySettingsComeBackAsTheyWere) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        const auto settings = RandomSettings(seed).make();
        ASSERT_TRUE(SaveUserPreferences(shared, *settings, path("random.xml"))) << seed;
        const auto again = LoadUserPreferencesFile(shared, path("random.xml"));
        ASSERT_TRUE(again) << seed << " " << testing::PrintToString(skipped);
        EXPECT_EQ(lines_of(*again), lines_of(*settings)) << seed;
        EXPECT_EQ(lines_of(*settings->Copy()), lines_of(*settings)) << seed;
    }
    EXPECT_THAT(skipped, IsEmpty());
}

TEST_F(PreferencesFileTest, FilesOfOlderVersionsAreRead) {
    const auto link = load(edited(edited(file, "<WksLinkColor dt:dt=\"i4\">32768<", "<LinkColor dt:dt=\"i4\">4660<"),
                                  "</WksLinkColor>", "</LinkColor>"));
    ASSERT_TRUE(link);
    EXPECT_EQ(link->WksLinkColor, 4660);

    const auto colors = load(
        without(without(edited(file, ">255</WkbLinkColor>", ">1</WkbLinkColor>"), "<WkbLinkColor", "</WkbLinkColor>"),
                "<PartialInputColor", "</PartialInputColor>"));
    ASSERT_TRUE(colors);
    EXPECT_EQ(colors->WkbLinkColor, defaults->WkbLinkColor);
    EXPECT_EQ(colors->PartialInputColor, defaults->PartialInputColor);

    const auto indent = load(without(file, "<RightIndentToggle>", "</RightIndentToggle>"));
    ASSERT_TRUE(indent);
    EXPECT_EQ(lines_of(*indent), lines_of(*defaults));

    for (const char* empty : {"<Text dt:dt=\"boolean\"></Text>", "<Text/>", "<Text> </Text>"}) {
        const auto text = load(edited(file, "<Text dt:dt=\"boolean\">1</Text>", empty));
        ASSERT_TRUE(text) << empty;
        EXPECT_TRUE(text->SmartCopyRight.Text && text->SmartCopyDown.Text) << empty;
    }
    // Where what was learnt of colours is written as a Boolean.
    const auto booleans = load(edited(file, "<AsFontColor dt:dt=\"i4\">0<", "<AsFontColor>False<"));
    ASSERT_TRUE(booleans);
    EXPECT_EQ(lines_of(*booleans), lines_of(*defaults));
    const auto known = load(edited(file, "<AsCellColorIndex dt:dt=\"i4\">36<", "<AsCellColorIndex>True<"));
    ASSERT_TRUE(known);
    EXPECT_EQ(known->Styles->Item("BR Light Yellow Background")->AsCellColorIndex, -1);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(PreferencesFileTest, StyleNamesThatAreNotThereLeaveTheReferenceEmpty) {
    const auto settings =
        load(edited(edited(edited(file, "<SheetStyle>BR Times New Roman", "<SheetStyle>BR Gone"),
                           "<Style>BR Euros Accounting</Style>", "<Style>BR Gone</Style>"),
                    "<BRPaintbrushStyle>BR US Dollar Two Decimals", "<BRPaintbrushStyle>br us dollar two decimals"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->SheetStyle, nullptr);
    EXPECT_EQ(settings->BRPaintbrushStyle, settings->Styles->Item("BR US Dollar Two Decimals")) << "whatever the case";
    EXPECT_EQ(settings->cycle(StyleCycle::CurrencyStyleToggle)->Styles->Count(), 9);
    EXPECT_THAT(skipped,
                testing::ElementsAre("UserSettings/CurrencyStyleToggle/Styles/Style 8: 'BR Gone' is left out"));
    ASSERT_TRUE(SaveUserPreferences(shared, *settings, path("again.xml")));
    EXPECT_TRUE(LoadUserPreferencesFile(shared, path("again.xml"))) << "without a sheet style, too";
}

TEST_F(PreferencesFileTest, FilesMayBeEditedByHand) {
    std::string bare = edited(file, " dt:dt=\"i4\"", "");
    for (const char* type : {" dt:dt=\"r8\"", " dt:dt=\"boolean\"", " dt:dt=\"dateTime\""})
        bare = edited(bare, type, "");
    std::string one_line;
    std::ranges::remove_copy_if(edited(file, "  ", ""), std::back_inserter(one_line),
                                [](char c) { return c == '\r' || c == '\n'; });
    const std::string words = edited(file, "UTF-8", "UTF-16");
    std::string utf16 = "\xFF\xFE";
    for (const char16_t unit : std::filesystem::path(std::u8string(words.begin(), words.end())).u16string()) {
        utf16 += {static_cast<char>(unit & 0xFFU), static_cast<char>(unit >> 8U)};
    }
    const std::pair<const char*, std::string> cases[] = {
        {"a byte order mark", "\xEF\xBB\xBF" + file},
        {"UTF-16", utf16},
        {"line feeds alone", edited(file, "\r\n", "\n")},
        {"tabs", edited(file, "  ", "\t")},
        {"one line", one_line},
        {"comments", edited(file, "<Show", "<!-- <Show>maybe</Show> --><?note x?><Show")},
        {"no data types", bare},
        {"other quotes and prefix", edited(edited(file, "dt:dt=\"i4\"", "dt:dt='int'"), "\"3.0\"", "'3.0'")},
        {"values on lines of their own", edited(bare, ">5</ZoomInterval>", ">\r\n\t5\r\n  </ZoomInterval>")},
        {"typed values on lines of their own", edited(edited(file, "\">", "\">\r\n\t"), "\">\r\n\t\r\n", "\">\r\n")},
        {"truth in words", edited(edited(bare, "<Show>1<", "<Show>True<"), "<Adjust>0<", "<Adjust>FALSE<")},
        {"elements of nobody's", edited(file, "<SheetStyle>", "<Author>me</Author><SheetStyle>")},
        {"another order", edited(edited(file, "<ZoomInterval dt:dt=\"i4\">5</ZoomInterval>", ""), "<SheetStyle>",
                                 "<ZoomInterval>5</ZoomInterval><SheetStyle>")},
    };
    for (const auto& [what, bytes] : cases) {
        const auto settings = load(bytes);
        ASSERT_TRUE(settings) << what << " " << testing::PrintToString(skipped);
        EXPECT_EQ(lines_of(*settings), lines_of(*defaults)) << what;
    }
    const auto changed = load(
        edited(edited(file, ">17</Setting>", ">17.25</Setting>"), ">2026-12-31T00:00:00<", ">2027-06-30T00:00:00<"));
    ASSERT_TRUE(changed);
    EXPECT_EQ(changed->cycle(NumericCycle::RowHeightToggle)->Settings, (std::vector<double>{8, 17.25, 34}));
    EXPECT_EQ(changed->SmartFillDates.EndDate, automation::Date{46568});
}

TEST_F(PreferencesFileTest, WhatCannotBeReadIsNamed) {
    const std::pair<std::string, const char*> cases[] = {
        {"", "is empty"},
        {file.substr(0, file.size() / 2), ""},
        {std::string((17U << 20U), ' '), "is longer than 16 MiB"},
        {edited(file, "7D3E9B20", "7D3E9B21"), "is no Brannoch Kestrune document: its identifier is"},
        {edited(file, "version=\"3.0\"", "version=\"4.0\""), "its version 4.0 is later than 3.0"},
        {edited(file, "UserSettings>", "Settings>"), "Kestrune/UserSettings: is missing"},
        {without(file, "<Styles>", "</Styles>"), "UserSettings/Styles: is missing"},
        {without(file, "<SheetStyle>", "</SheetStyle>"), "UserSettings/SheetStyle: is missing"},
        {without(file, "<WksLinkColor", "</WksLinkColor>"), "UserSettings/WksLinkColor: is missing"},
        {without(file, "<FriendlyName>", "</FriendlyName>"), "UserSettings/Styles/Style 1/FriendlyName: is missing"},
        {edited(file, "<Size dt:dt=\"i4\">14<", "<Size>fourteen<"),
         "the style 'BR Header'/Size: 'fourteen' is no whole number"},
        {edited(file, "<Size dt:dt=\"i4\">14<", "<Size dt:dt=\"i4\">fourteen<"),
         "the style 'BR Header'/Size: 'fourteen' is no i4"},
        {edited(file, "<Size dt:dt=\"i4\">14<", "<Size dt:dt=\"i4\">four\nteen<"),
         "the style 'BR Header'/Size: 'four teen' is no i4"},
        {edited(file, "<Size dt:dt=\"i4\">14<", "<Size dt:dt=\"i4\">" + std::string(100'000, '1') + "<"), "1111..."},
        {edited(file, "<Size dt:dt=\"i4\">14<", "<Size>3000000000<"),
         "the style 'BR Header'/Size: the number does not fit"},
        {edited(file, "<Adjust dt:dt=\"boolean\">0<", "<Adjust>maybe<"),
         "UserSettings/SmartCopyRight/Adjust: 'maybe' is no Boolean"},
        {edited(file, "<Show dt:dt=\"boolean\">1<", "<Show><"), "SmartCopyRight/Show: '' is no Boolean"},
        {edited(file, " dt:dt=\"dateTime\">2026-01-31T00:00:00<", ">2026-02-30<"),
         "SmartFillDates/StartDate: '2026-02-30' is no date such as 2026-01-31"},
        {without(file, "<SmartFillNumbers>", "</SmartFillNumbers>"), "UserSettings/SmartFillNumbers: is missing"},
        {without(file, "<IndentToggle>", "</IndentToggle>"), "UserSettings/IndentToggle: is missing"},
        {edited(file, "<Setting dt:dt=\"r8\">64<", "<Setting>wide<"),
         "UserSettings/ColWidthToggle/Settings/Setting 3: 'wide' is no number"},
        {without(file, "<LookFors>", "</LookFors>"), "UserSettings/IndentToggle/LookFors: is missing"},
        {without(file, "<MyStyleToggle15>", "</MyStyleToggle15>"), "UserSettings/MyStyleToggle15: is missing"},
        {edited(file, "?>\r\n<Kestrune", "?><!DOCTYPE Kestrune [<!ENTITY x \"x\">]><Kestrune"), "document type"},
    };
    for (const auto& [bytes, why] : cases) EXPECT_THAT(refusal(bytes), AllOf(HasSubstr(why), Not("read"))) << why;
    std::filesystem::create_directory(folder / "folder.xml");
    EXPECT_EQ(LoadUserPreferencesFile(shared, path("folder.xml")), nullptr);
    EXPECT_EQ(skipped.back(), "user preferences: " + path("folder.xml") + ": is a folder");
    ASSERT_EQ(presenter.messages().size(), 1U);
    EXPECT_EQ(presenter.messages()[0].text, shared.general().message(core::Text::ImportFailed));
    EXPECT_EQ(presenter.messages()[0].buttons, forms::vbExclamation);
    EXPECT_EQ(presenter.messages()[0].caption, "Brannoch Kestrune");
}

TEST_F(PreferencesFileTest, TheFirstOfTwoStylesOfANameCounts) {
    const auto settings = load(edited(file, "<FriendlyName>BR No Decimals<", "<FriendlyName>br general<"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->Styles->Count(), 128);
    EXPECT_EQ(settings->Styles->Item("BR General")->NumberFormat, "General");
    EXPECT_THAT(skipped, testing::Contains("the style 'br general': is there already"));
}

TEST_F(PreferencesFileTest, AFileIsReplacedWholeOrNotAtAll) {
    put_file("UserPreferences.xml", "old");
    // A height that no file can hold: without it the file could not be read again.
    auto broken = std::make_shared<styles::cLongToggle>("Heights", std::vector<double>{1, 2});
    broken->Settings.front() = std::numeric_limits<double>::infinity();
    defaults->set_cycle(NumericCycle::RowHeightToggle, broken);
    EXPECT_FALSE(SaveUserPreferences(shared, *defaults));
    EXPECT_EQ(bytes("UserPreferences.xml"), "old");
    EXPECT_EQ(ReadUserPreferences(shared), nullptr) << "the document was released";
    defaults->LoadDefaults();
    EXPECT_FALSE(SaveUserPreferences(shared, *defaults, path("no/such/folder.xml")));
    EXPECT_THAT(skipped.back(), HasSubstr(path("no/such/folder.xml") + ": "));
    ASSERT_TRUE(SaveUserPreferences(shared, *defaults));
    EXPECT_TRUE(LoadUserPreferencesFile(shared, own_path()));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1) << "nothing stays beside";
}

}  // namespace
}  // namespace kestrune::settings
