#include <gmock/gmock.h>

#include "forms/ScriptedPresenter.h"
#include "styles/FakeExcel.h"
#include "styles/cStyleToggle.h"

namespace kestrune::styles {
namespace {

using automation::Null;
using automation::Value;

struct StyleOnACell : testing::Test {
    forms::ScriptedPresenter presenter;
    automation::Trace trace;
    core::SharedState shared{presenter, trace};
    FakeCell cell;
    excel::Range range{cell.range};

    static StyleRef transparent_but_number(std::string format) {
        auto style = std::make_shared<cStyle>();
        style->FriendlyName = style->NumberFormat = std::move(format);
        style->bTransFontSetting = style->bTransFontStyle = style->bTransFontSize = style->bTransUnderline =
            style->bTransFontColor = style->bTransCellColor = style->bTransHorizontalAlignment =
                style->bTransVerticalAlignment = style->bTransOrientation = style->bTransIndents =
                    style->bTransShrinkToFit = style->bTransWrapTest = style->bTransStrikeThrough =
                        style->bTransBorders = true;
        return style;
    }
};

TEST_F(StyleOnACell, WritesItsComponentsInOrder) {
    cStyle style;
    style.Apply(shared, range);
    EXPECT_THAT(cell.log,
                testing::ElementsAre("Range.NumberFormat", "Font.Name", "Font.Bold", "Font.Italic", "Font.Size",
                                     "Font.Underline", "Font.Color", "Interior.ColorIndex", "Range.IndentLevel",
                                     "Range.HorizontalAlignment", "Range.VerticalAlignment", "Range.Orientation",
                                     "Range.ShrinkToFit", "Range.WrapText", "Font.Strikethrough", "Border.LineStyle",
                                     "Border.LineStyle", "Border.LineStyle", "Border.LineStyle", "Border.LineStyle",
                                     "Border.LineStyle"));
    EXPECT_TRUE(style.IsApplied(shared, range));
}

// Each component once: what the cell shows instead, that this is a difference, and that it is none
// when the component is transparent, mixed within the cell.
TEST_F(StyleOnACell, ComparesEveryComponentThatCounts) {
    struct Case {
        std::shared_ptr<FakeObject> FakeCell::*object;
        const char* property;
        Value shown;
        bool StyleFields::*transparent;
    };
    const Case cases[] = {
        {&FakeCell::range, "NumberFormat", "general", &StyleFields::bTransNumberFormat},
        {&FakeCell::font, "Name", "Courier", &StyleFields::bTransFontSetting},
        {&FakeCell::font, "Bold", true, &StyleFields::bTransFontStyle},
        {&FakeCell::font, "Italic", true, &StyleFields::bTransFontStyle},
        {&FakeCell::font, "Size", 10.5, &StyleFields::bTransFontSize},
        {&FakeCell::font, "Underline", 2, &StyleFields::bTransUnderline},
        {&FakeCell::interior, "ColorIndex", 6, &StyleFields::bTransCellColor},
        {&FakeCell::range, "IndentLevel", 1, &StyleFields::bTransIndents},
        {&FakeCell::range, "HorizontalAlignment", -4131, &StyleFields::bTransHorizontalAlignment},
        {&FakeCell::range, "VerticalAlignment", -4160, &StyleFields::bTransVerticalAlignment},
        {&FakeCell::range, "Orientation", 45, &StyleFields::bTransOrientation},
        {&FakeCell::range, "ShrinkToFit", true, &StyleFields::bTransShrinkToFit},
        {&FakeCell::range, "WrapText", true, &StyleFields::bTransWrapTest},
        {&FakeCell::font, "Strikethrough", true, &StyleFields::bTransStrikeThrough},
        {&FakeCell::border, "LineStyle", 1, &StyleFields::bTransBorders},
        {&FakeCell::workbook, "Colors", 255, &StyleFields::bTransFontColor},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.property);
        cStyle style;
        auto& shown = (cell.*c.object)->properties;
        const Value before = shown[c.property];
        ASSERT_TRUE(style.IsApplied(shared, range));
        shown[c.property] = c.shown;
        EXPECT_FALSE(style.IsApplied(shared, range));
        style.*c.transparent = true;
        EXPECT_TRUE(style.IsApplied(shared, range));
        style.*c.transparent = false;
        shown.erase(c.property);
        EXPECT_FALSE(style.IsApplied(shared, range)) << "a failing read is a difference";
        shown[c.property] = before;
    }
    // The index, not the palette, is what a cell with text of two colours answers Null for.
    for (const Case& c : cases) {
        SCOPED_TRACE(c.property);
        const bool color = c.object == &FakeCell::workbook;
        auto& shown = color ? cell.font->properties : (cell.*c.object)->properties;
        const char* property = color ? "ColorIndex" : c.property;
        const Value before = shown[property];
        shown[property] = Null{};
        EXPECT_TRUE(cStyle().IsApplied(shared, range));
        shown[property] = before;
    }
}

TEST_F(StyleOnACell, GoesOnAfterARefusalAndKeepsItsOwnFields) {
    std::vector<std::string> skipped;
    automation::Trace listening;
    listening.listen([&](std::string_view line) { skipped.emplace_back(line); });
    core::SharedState traced{presenter, listening};
    cell.range->refused = {"NumberFormat"};
    cell.border->refused = {"LineStyle", "Weight", "ColorIndex"};
    cStyle style;
    style.NumberFormat = "0";
    style.Bold = true;
    style.BorderStyle = excel::xlContinuous;
    style.BorderWeight = excel::xlMedium;
    style.BorderLeft = true;
    style.Apply(traced, range);
    EXPECT_EQ(cell.range->properties["NumberFormat"], Value("General"));
    EXPECT_EQ(cell.font->properties["Bold"], Value(true));
    EXPECT_EQ(style.BorderStyle, excel::xlContinuous);
    EXPECT_EQ(style.BorderWeight, excel::xlMedium);
    EXPECT_FALSE(skipped.empty());

    style.Apply(shared, excel::Range());
    EXPECT_FALSE(style.IsApplied(shared, excel::Range()));
}

TEST_F(StyleOnACell, StepsFromTheEntryThatTheCellShows) {
    cStyleToggle toggle("cycle");
    const auto press = [&](std::int32_t position = 0) {
        toggle.Apply(shared, range, position);
        return automation::convert<std::string>(cell.range->properties["NumberFormat"]);
    };
    EXPECT_EQ(press(), "General") << "an empty cycle applies nothing";
    toggle.Styles->Add(transparent_but_number("a"));
    EXPECT_EQ(press(), "a");
    EXPECT_EQ(press(), "a");
    toggle.Styles->Add(transparent_but_number("b"));
    toggle.Styles->Add(transparent_but_number("c"));
    EXPECT_EQ(press(), "b");
    EXPECT_EQ(press(), "c");
    EXPECT_EQ(press(), "a");
    cell.range->properties["NumberFormat"] = "other";
    EXPECT_EQ(press(), "a");
    EXPECT_EQ(press(3), "c");
    EXPECT_EQ(press(2), "b");
    EXPECT_EQ(press(4), "b") << "no such entry";
    EXPECT_EQ(press(-1), "b");
    // A style without components shows everywhere, so the entry after it is the one to apply.
    toggle.Styles->Item(1)->bTransNumberFormat = true;
    EXPECT_EQ(press(), "b");
    EXPECT_EQ(press(), "b");
}

TEST_F(StyleOnACell, ACycleCopiesItsListAndSharesItsStyles) {
    cStyleToggle toggle("cycle");
    toggle.Styles->Add(transparent_but_number("a"));
    const auto copy = cStyleToggle::Copy(&toggle);
    EXPECT_EQ(copy->Name, "cycle");
    EXPECT_EQ(copy->Styles->Item(1), toggle.Styles->Item(1));
    copy->Styles->Clear();
    EXPECT_EQ(toggle.Styles->Count(), 1);
    EXPECT_EQ(cStyleToggle::Copy(nullptr), nullptr);
}

}  // namespace
}  // namespace kestrune::styles
