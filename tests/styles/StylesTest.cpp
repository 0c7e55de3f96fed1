#include <gtest/gtest.h>

#include "settings/DefaultCycles.h"
#include "settings/cUserSettings.h"
#include "styles/cStyles.h"

namespace kestrune::styles {
namespace {

StyleRef named(std::string name, std::int32_t category = category::none) {
    auto style = std::make_shared<cStyle>();
    style->FriendlyName = std::move(name);
    style->Category = category;
    return style;
}

std::string order(const cStyles& styles) {
    std::string names;
    for (std::int32_t i = 1; i <= styles.Count(); ++i) {
        names += styles.Item(i)->FriendlyName;
        if (styles.Item(i)->MyIndex() != i) names += "?";
    }
    return names;
}

TEST(Styles, AreInsertedWhereAsked) {
    struct Case {
        std::int32_t position;
        bool after;
        std::string order;
    };
    for (const Case& c : {Case{0, false, "abcX"}, Case{1, false, "Xabc"}, Case{3, false, "abXc"}, Case{1, true, "aXbc"},
                          Case{3, true, "abcX"}, Case{8, false, "abcX"}, Case{8, true, "abcX"}}) {
        cStyles styles;
        for (const char* name : {"a", "b", "c"}) EXPECT_TRUE(styles.Add(named(name)));
        EXPECT_TRUE(styles.Add(named("X"), {}, c.position, c.after));
        EXPECT_EQ(order(styles), c.order) << c.position << c.after;
    }
}

TEST(Styles, RefuseATakenKeyAndNoStyle) {
    cStyles styles;
    EXPECT_TRUE(styles.Add(named("BR General")));
    EXPECT_FALSE(styles.Add(named("BR General")));
    EXPECT_FALSE(styles.Add(named("br general")));
    EXPECT_FALSE(styles.Add(nullptr, "x"));
    EXPECT_FALSE(styles.Add(named("x"), {}, -1));
    EXPECT_TRUE(styles.Add(named("BR General"), "another key"));
    EXPECT_EQ(styles.Count(), 2);
    EXPECT_EQ(styles.Item("Another Key"), styles.Item(2));
    EXPECT_EQ(styles.Item("absent"), nullptr);
    EXPECT_EQ(styles.Item(0), nullptr);
    EXPECT_EQ(styles.Item(3), nullptr);
}

TEST(Styles, MoveToExactlyThePositionAsked) {
    struct Case {
        std::int32_t from, to;
        bool moved;
        std::string order;
    };
    for (const Case& c : {Case{1, 4, true, "bcda"}, Case{4, 1, true, "dabc"}, Case{2, 3, true, "acbd"},
                          Case{3, 3, true, "abcd"}, Case{0, 2, false, "abcd"}, Case{2, 5, false, "abcd"}}) {
        cStyles styles;
        for (const char* name : {"a", "b", "c", "d"}) styles.Add(named(name));
        EXPECT_EQ(styles.Move(c.from, c.to), c.moved);
        EXPECT_EQ(order(styles), c.order) << c.from << " to " << c.to;
    }
}

TEST(Styles, KeepPositionsInTheLibraryWhileCyclesShareThem) {
    auto library = std::make_shared<cStyles>();
    for (const char* name : {"a", "b", "c"}) library->Add(named(name));
    cStyles cycle;
    cycle.Add(library->Item(3));
    EXPECT_EQ(cycle.Item(1)->MyIndex(), 3);
    library->Remove(1);
    EXPECT_EQ(cycle.Item(1)->MyIndex(), 2);
    library.reset();
    EXPECT_EQ(cycle.Item(1)->MyIndex(), 0);
}

TEST(Styles, TellShippedStandardsAndCategories) {
    cStyles styles;
    for (const char* name : {"BR Standard Input", "BR Standar", "br standard x", "My BR Standard"}) {
        styles.Add(named(name, category::date));
        styles.Item(name)->AccessLevel = 7;
    }
    styles.Add(named("number", category::short_number));
    styles.SetAccessLevels();
    std::string levels;
    for (std::int32_t i = 1; i <= styles.Count(); ++i) levels += std::to_string(styles.Item(i)->AccessLevel);
    EXPECT_EQ(levels, "20000");

    const auto dates = styles.CategoryStyles(category::date);
    EXPECT_EQ(dates->Count(), 4);
    EXPECT_EQ(dates->Item(4), styles.Item(4));
    EXPECT_EQ(styles.CategoryStyles(category::text)->Count(), 0);
}

TEST(Settings, DefaultsNameOnlyStylesOfTheLibrary) {
    settings::cUserSettings record;
    record.LoadDefaults();
    EXPECT_EQ(record.Styles->Count(), 129);
    EXPECT_EQ(record.Styles->Item(1)->FriendlyName, "BR General");
    EXPECT_EQ(record.BRPaintbrushStyle, record.Styles->Item("BR US Dollar Two Decimals"));
    EXPECT_EQ(record.SheetStyle, record.Styles->Item("BR Times New Roman"));
    ASSERT_TRUE(record.BRPaintbrushStyle && record.SheetStyle);
    EXPECT_EQ(record.ErrorMsg, "\"NA\"");
    EXPECT_EQ(record.ZoomInterval, 5);

    for (const settings::DefaultCycle& row : settings::default_cycles()) {
        const StyleToggleRef& cycle = record.cycle(row.field);
        ASSERT_TRUE(cycle) << row.display_name;
        EXPECT_EQ(cycle->Name, row.display_name);
        // A step that names no style would be missing here.
        ASSERT_EQ(cycle->Styles->Count(), static_cast<std::int32_t>(row.steps.size())) << row.display_name;
        for (const std::string_view step : row.steps) {
            EXPECT_EQ(cycle->Styles->Item(step), record.Styles->Item(step));
        }
    }
    EXPECT_EQ(record.cycle(settings::my_style_cycle(15))->Name, "My SmartCycle 15");
}

TEST(Settings, NoTwoStylesOfTheLibraryAreTheSame) {
    settings::cUserSettings record;
    record.LoadDefaults();
    for (std::int32_t i = 1; i <= record.Styles->Count(); ++i) {
        for (std::int32_t j = 1; j < i; ++j) {
            StyleFields one = *record.Styles->Item(i);
            const StyleFields& other = *record.Styles->Item(j);
            const std::string name = one.FriendlyName;
            one.FriendlyName = other.FriendlyName;
            EXPECT_FALSE(one == other) << name << " is " << other.FriendlyName;
        }
    }
}

TEST(Settings, ACopyIsEditedWithoutTouchingItsSource) {
    settings::cUserSettings record;
    record.LoadDefaults();
    const auto strayed = named("in a cycle only");
    record.cycle(settings::my_style_cycle(6))->Styles->Add(strayed);
    const auto copy = record.Copy();

    const StyleRef style = copy->Styles->Item("BR General");
    EXPECT_EQ(StyleFields(*style), StyleFields(*record.Styles->Item("BR General")));
    style->NumberFormat = "0";
    EXPECT_EQ(record.Styles->Item("BR General")->NumberFormat, "General");
    // The copy's cycles, Paintbrush and sheet style belong to the copy.
    EXPECT_EQ(copy->cycle(settings::StyleCycle::CurrencyStyleToggle)->Styles->Item("BR General"), style);
    EXPECT_EQ(copy->SheetStyle, copy->Styles->Item("BR Times New Roman"));
    EXPECT_EQ(copy->BRPaintbrushStyle, copy->Styles->Item("BR US Dollar Two Decimals"));
    EXPECT_NE(copy->cycle(settings::my_style_cycle(6))->Styles->Item(1), strayed);
    EXPECT_EQ(style->MyIndex(), 1);

    copy->cycle(settings::StyleCycle::DateStyleToggle)->Styles->Clear();
    copy->Styles->Clear();
    EXPECT_EQ(record.cycle(settings::StyleCycle::DateStyleToggle)->Styles->Count(), 10);
    EXPECT_EQ(record.Styles->Count(), 129);
}

}  // namespace
}  // namespace kestrune::styles
