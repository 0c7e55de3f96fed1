#include <set>

#include "brvblib/LibraryTest.h"

namespace kestrune::brvblib {
namespace {

using automation::AutomationError;
using testing::ElementsAre;
using testing::HasSubstr;

struct StringsTest : LibraryTest {
    StringsTest() { load(); }
};

TEST_F(StringsTest, SplitsNumberFormatsWhereExcelDoes) {
    const struct {
        const char* format;
        std::vector<std::string> sections;
    } cases[] = {
        {"", {""}},
        {"General", {"General"}},
        {"#,##0_);(#,##0);\"-\";@", {"#,##0_)", "(#,##0)", "\"-\"", "@"}},
        {"0\"a;b\";;", {"0\"a;b\"", "", ""}},
        {"0\\;0;1", {"0\\;0", "1"}},
        {"0_;;1", {"0_;", "1"}},  // as wide as a ";", then a section ends
        {"*;0;1", {"*;0", "1"}},  // filled with ";"
        {"[$;-409]0;[Red]0", {"[$;-409]0", "[Red]0"}},
        {"0\\\";1", {"0\\\"", "1"}},    // an escaped quote opens nothing
        {"\"\\\";0", {"\"\\\"", "0"}},  // a backslash in quotes is a backslash
        {"\"open;0", {"\"open;0"}},
        {"0\\", {"0\\"}},
    };
    for (const auto& c : cases) EXPECT_EQ(wrapper.number_format_sections(c.format), c.sections) << c.format;
}

TEST_F(StringsTest, FindsTheParenthesisThatCloses) {
    const struct {
        const char* expression;
        std::int32_t position;
    } cases[] = {
        {"A1/B1), \"NA\", A1/B1)", 6},
        {"SUM(A1,(B1))), 0)", 13},
        {"A1&\")\"), 1", 7},
        {"A1&\"say \"\")\"\"\"), 1", 15},
        {"'Q1 (old)'!A1), 1", 14},
        {"'Bob''s :)'!A1)", 15},
        {"Table1[Rate (%)]))", 17},
        {"Table1['[) x])", 14},
        {"'C:\\dir\\[b).xlsx]S'!A1)", 23},
        {"\xF0\x9F\x98\x80\xC3\xA9)", 4},  // two units and one, as Visual Basic counts
        {"A1", 0},
        {"(A1)", 0},
        {"", 0},
    };
    for (const auto& c : cases) EXPECT_EQ(wrapper.closing_parenthesis(c.expression), c.position) << c.expression;
}

TEST_F(StringsTest, ReadsNumbersAsTheyAreTyped) {
    const struct {
        const char* text;
        std::optional<double> number;
    } cases[] = {
        {"12", 12},
        {" 1,250.5 ", 1250.5},
        {"-3", -3},
        {"(3)", -3},
        {"( $1,000.25 )", -1000.25},
        {"$40", 40},
        {"-$5", -5},
        {"$-5", -5},
        {"+.5", 0.5},
        {"5.", 5},
        {"12.5%", 0.125},
        {"1e6", 1e6},
        {"1E+3", 1000},
        {"1,2,3", 123},
        {"", {}},
        {" ", {}},
        {"abc", {}},
        {"1,", {}},
        {",1", {}},
        {"1.5,0", {}},
        {"--1", {}},
        {"(-1)", {}},
        {"1 2", {}},
        {"inf", {}},
        {"nan", {}},
        {"1e999", {}},
        {"%", {}},
        {"$", {}},
        {"()", {}},
        {"0x10", {}},
        {"1-", {}},
    };
    for (const auto& c : cases) EXPECT_EQ(wrapper.typed_number(c.text), c.number) << "'" << c.text << "'";
    EXPECT_EQ(answer("iString", "Number", "x"), "<iString.Number: 'x' is not a number>");
}

TEST_F(StringsTest, ReadsDatesAsPeopleTypeThem) {
    services.now = [] { return automation::Date{46000}; };  // 9 December 2025
    load();
    const struct {
        const char* text;
        std::optional<double> serial;
    } cases[] = {
        {"1/31/2026", 46053},
        {" 01/31/26 ", 46053},
        {"31/1/2026", 46053},
        {"2026-01-31", 46053},
        {"1/31", 45688},
        {"31-Jan-26", 46053},
        {"31 January 2026", 46053},
        {"jan 31, 2026", 46053},
        {"January 31", 45688},
        {"Jan 2026", 46023},
        {"Jan-26", 45683},
        {"Jan-99", 36161},
        {"5/2026", 46143},
        {"12/31/1899", 1},
        {"12/29/1899", -1},
        {"2/29/2024", 45351},
        {"9:30", 0.395833333},
        {"9:30:15 pm", 0.896006944},
        {"12 AM", 0},
        {"1/31/2026 6:00 PM", 46053.75},
        {"Jan 31 6:00", 45688.25},
        {"2/29/2026", {}},
        {"13/13/2026", {}},
        {"1/1/99999", {}},
        {"45000", {}},
        {"1.5", {}},
        {"", {}},
        {"soon", {}},
        {"25:00", {}},
        {"9:75", {}},
        {"13 PM", {}},
        {"1/31/2026 x", {}},
        {"Jan", {}},
        {"1//2", {}},
        {"$1/1/2026", {}},
        {"/", {}},
    };
    for (const auto& one : cases) {
        const auto date = wrapper.typed_date(one.text);
        EXPECT_EQ(date.has_value(), one.serial.has_value()) << one.text;
        if (date && one.serial) {
            EXPECT_NEAR(date->serial, *one.serial, 1e-6) << one.text;
        }
    }
}

TEST_F(StringsTest, AFieldThatHoldsNoNumberIsNamed) {
    EXPECT_TRUE(wrapper.check_numeric_field("1,000", "start value"));
    EXPECT_TRUE(presenter.messages().empty());
    EXPECT_FALSE(wrapper.check_numeric_field("soon", "start value"));
    ASSERT_EQ(presenter.messages().size(), 1U);
    EXPECT_EQ(presenter.messages()[0].text, "Please enter a number for the start value.");
    EXPECT_EQ(presenter.messages()[0].caption, "Brannoch Kestrune");
}

TEST_F(StringsTest, TestsVersions) {
    for (const char* later : {"10.0", "16.0", "11", "10,0"}) EXPECT_TRUE(wrapper.version_at_least(later, 10)) << later;
    for (const char* earlier : {"9.0a", "8", "", "x"}) EXPECT_FALSE(wrapper.version_at_least(earlier, 10)) << earlier;
}

TEST_F(StringsTest, MakesTextsFitForNames) {
    EXPECT_EQ(wrapper.name_text("11/22/2026 9:05:00 PM"), "11_22_2026_9_05_00_PM");
    EXPECT_EQ(wrapper.name_text("\xC3\x84.b_c-d"), "\xC3\x84.b_c_d");
}

TEST_F(StringsTest, GivesMessagesByNumber) {
    // What a caller adds to a text follows it.
    EXPECT_THAT(wrapper.message(core::Text::ExamplesNotFound), testing::EndsWith(": "));
    EXPECT_EQ(wrapper.message(core::Text::PaintbrushStem) + "1", "Paintbrush 1");
    EXPECT_EQ(wrapper.text(3025), wrapper.message(core::Text::ExamplesNotFound));
    std::set<std::string> texts;
    constexpr std::int32_t named[] = {3021, 3025, 3040, 3041, 3042, 3043, 3044, 3060, 3061,
                                      3110, 3120, 3130, 3131, 3132, 3133, 3134, 3150};
    for (const std::int32_t number : named) texts.insert(wrapper.message(core::Text{number}));
    EXPECT_EQ(texts.size(), std::size(named)) << "no two messages say the same";
    EXPECT_THAT(wrapper.message(core::Text::DownNeedsOneRow), HasSubstr("row"));
    EXPECT_THAT(wrapper.message(core::Text::RightNeedsOneColumn), HasSubstr("column"));
    EXPECT_EQ(answer("iProduct", "Message", 3022, 1033),
              "<iProduct.Message: there is no message 3022 in language 1033>");
    EXPECT_EQ(answer("iProduct", "Message", 3021, 1036),
              "<iProduct.Message: there is no message 3021 in language 1036>");
}

TEST_F(StringsTest, HotKeysCallWhoIsRegistered) {
    const auto registry = automation::to_object(automation::get(*part("iHotKeys"), "Registry"));
    const auto registered = [&](const char* client) {
        return automation::to_object(automation::call(*registry, "Callback", {client}));
    };
    const automation::ObjectRef callback = part("iConst");
    automation::call(*registry, "RegisterCallback", {"Client", callback});
    EXPECT_EQ(registered("CLIENT"), callback);
    EXPECT_EQ(registered("Other"), nullptr);
    EXPECT_THROW(automation::call(*registry, "RegisterCallback", {"Client", nullptr}), AutomationError);
    EXPECT_EQ(registered("Client"), callback) << "a refused registration changes nothing";
    automation::call(*library, "UnregisterClient", {"Client"});
    EXPECT_EQ(registered("Client"), nullptr) << "a client that leaves is not called any more";
    automation::put(*registry, "Product", "Kestrune");
    EXPECT_EQ(automation::get(*registry, "Product"), automation::Value("Kestrune"));
}

}  // namespace
}  // namespace kestrune::brvblib
