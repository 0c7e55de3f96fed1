#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Sure, PaletteReadsAndWrites) {
    const ObjectRef book = object(application, "ActiveWorkbook");
    const std::pair<int, double> defaults[] = {{1, 0},      {3, 255},       {5, 16711680},
                                               {10, 32768}, {17, 16751001}, {56, 3355443}};
    for (const auto& [index, color] : defaults) EXPECT_EQ(get(book, "Colors", {index}), Value(color)) << index;
    Arguments change{3, 0x123456};
    book->invoke("Colors", automation::Call::Put, change);
    EXPECT_EQ(get(book, "Colors", {3}), Value(double{0x123456}));
    EXPECT_EQ(get(book, "Colors").array()->at(3), Value(double{0x123456}));
    for (const int index : {0, 57}) EXPECT_EQ(call_refused(book, "Colors", {index}), error_1004);
    EXPECT_EQ(get(book, "Saved"), Value(false));
}

TEST_F(Likely, ColoursAnswerTheNearestPaletteEntry) {
    const ObjectRef text = font(range("A1"));
    EXPECT_EQ(get(text, "Color"), Value(0.0));
    EXPECT_EQ(get(text, "ThemeColor"), Value(2)) << "dark text of the theme";
    EXPECT_EQ(get(text, "ColorIndex"), Value(1));
    put(text, "Color", 254);
    EXPECT_EQ(get(text, "Color"), Value(254.0)) << "the true colour is stored";
    EXPECT_EQ(get(text, "ColorIndex"), Value(3));
    put(text, "ColorIndex", xlAutomatic);
    EXPECT_EQ(get(text, "Color"), Value(0.0));
    EXPECT_EQ(get(text, "ColorIndex"), Value(xlAutomatic));
    put(text, "Color", -16776961);
    EXPECT_EQ(get(text, "Color"), Value(255.0)) << "as recorded macros write red";
    put(text, "ColorIndex", 5);
    put_at(object(application, "ActiveWorkbook"), "Colors", 5, 0x112233);
    EXPECT_EQ(get(text, "Color"), Value(double{0x112233})) << "an entry follows the palette";
    put(text, "ThemeColor", 5);
    put(text, "TintAndShade", 0.5);
    EXPECT_EQ(get(text, "TintAndShade"), Value(0.5));
}

TEST_F(Sure, FillsKeepTheirColourThroughPatterns) {
    const ObjectRef fill = interior(range("A1"));
    EXPECT_EQ(get(fill, "ColorIndex"), Value(xlNone));
    EXPECT_EQ(get(fill, "Color"), Value(16777215.0));
    EXPECT_EQ(get(fill, "Pattern"), Value(xlNone));
    put(fill, "Color", 65535);
    EXPECT_EQ(get(fill, "Pattern"), Value(xlSolid));
    put(fill, "Pattern", -4124);
    EXPECT_EQ(get(fill, "Color"), Value(65535.0));
    EXPECT_EQ(get(fill, "PatternColorIndex"), Value(xlAutomatic));
    put(fill, "PatternColor", 255);
    put(fill, "Pattern", xlSolid);
    EXPECT_EQ(get(fill, "Color"), Value(65535.0));
    put(fill, "ColorIndex", xlNone);
    EXPECT_EQ(get(fill, "Pattern"), Value(xlNone));
    EXPECT_EQ(get(fill, "Color"), Value(16777215.0));
}

TEST_F(Likely, PaletteHasNoAutomaticColour) {
    EXPECT_EQ(call_refused(workbook(), "Colors", {xlAutomatic}), error_1004);
}

}  // namespace
}  // namespace kestrune::contract
