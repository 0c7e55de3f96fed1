#include <gtest/gtest.h>

#include <cmath>

#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

TEST(StyleTable, FindsEqualFormatsAgain) {
    StyleTable styles = StyleTable::defaults();
    const auto bold = [](Font& font) { font.bold = true; };
    const auto plain = [](Font& font) { font.bold = false; };
    const StyleId first = styles.with_font(0, bold);
    EXPECT_NE(first, 0U);
    EXPECT_EQ(styles.with_font(0, bold), first);
    EXPECT_EQ(styles.with_font(first, bold), first);
    EXPECT_EQ(styles.with_font(first, plain), 0U) << "back at the first format";
    EXPECT_EQ(styles.formats.size(), 2U);
    EXPECT_EQ(styles.fonts.size(), 2U);
    const StyleId lined =
        styles.with_border(first, [](Border& border) { border.line(Edge::Top).style = LineStyle::Thin; });
    EXPECT_TRUE(styles.font_of(lined).bold) << "the other pieces stay";
    EXPECT_EQ(styles.border_of(lined).top.style, LineStyle::Thin);
}

TEST(StyleTable, KeepsTwinsOfTheFileAndFindsTheFirst) {
    StyleTable styles;
    for (int i = 0; i < 3; ++i) styles.fills.append(Fill{});
    EXPECT_EQ(styles.fills.size(), 3U);
    EXPECT_EQ(styles.fills.intern(Fill{}), 0U);
    Fill tinted;
    tinted.foreground = Color::theme(4, 0.0);
    const auto position = styles.fills.intern(tinted);
    tinted.foreground.tint = -0.0;
    EXPECT_EQ(styles.fills.intern(tinted), position) << "-0 is 0";
    tinted.foreground.tint = 0.1;
    EXPECT_NE(styles.fills.intern(tinted), position);
}

TEST(StyleTable, NumbersNumberFormats) {
    StyleTable styles;
    styles.load_number_format(170, "0.0x");
    styles.load_number_format(44, "_-[$EUR] * #,##0.00_-");
    styles.load_number_format(164, "first");
    styles.load_number_format(164, "second");
    struct Case {
        const char* code;
        std::uint32_t number;
    };
    const Case cases[] = {
        {"general", 0},
        {"0.00%", 10},
        {"m/d/yyyy", 14},
        {"0.0x", 170},
        {"second", 164},
        {"_-[$EUR] * #,##0.00_-", 44},
        {"0.000", 165},
        {"0.0000", 166},
        {"0.000", 165},
        {"first", 167},
        {R"(_($* #,##0.00_);_($* (#,##0.00);_($* "-"??_);_(@_))", 168},  // the file took 44 for another
    };
    for (const Case& c : cases) {
        EXPECT_EQ(styles.intern_number_format(c.code), c.number) << c.code;
        if (c.number > 0) {
            EXPECT_EQ(styles.number_format(c.number), c.code);
        }
    }
    EXPECT_EQ(styles.number_format(0), "General");
    EXPECT_EQ(styles.number_format(4'000'000'000), "General");
}

std::uint32_t rgb(std::uint32_t bgr) { return (bgr & 0xFFU) << 16U | (bgr & 0xFF00U) | bgr >> 16U; }

TEST(Colors, ShowAsExcelShowsThem) {
    Workbook workbook;
    struct Case {
        Color color;
        std::uint32_t red_first;
    };
    // Theme tints as Excel's colour menu for the Office theme has them.
    const Case cases[] = {
        {Color::theme(0), 0xFFFFFF},
        {Color::theme(1), 0x000000},
        {Color::theme(4), 0x4F81BD},
        {Color::theme(4, 0.79998168889431442), 0xDCE6F1},
        {Color::theme(4, 0.59999389629810485), 0xB8CCE4},
        {Color::theme(4, 0.39997558519241921), 0x95B3D7},
        {Color::theme(4, -0.249977111117893), 0x366092},
        {Color::theme(4, -0.499984740745262), 0x244062},
        {Color::theme(9, 0.39997558519241921), 0xFABF8F},
        {Color::theme(6, -0.249977111117893), 0x76933C},
        {Color::theme(0, -0.14999847407452621), 0xD9D9D9},
        {Color::theme(1, 0.499984740745262), 0x808080},
        {Color::theme(99), 0x123456},
        {Color::rgb(0x0000FF), 0xFF0000},
        {Color::indexed(2), 0xFF0000},
        {Color::indexed(10), 0xFF0000},
        {Color::indexed(63), 0x333333},
        {Color::indexed(64), 0x000000},
        {Color::indexed(65), 0xFFFFFF},
        {Color::indexed(66), 0x123456},
        {Color::automatic(), 0x123456},
    };
    for (const Case& c : cases) {
        const std::uint32_t shown = rgb(workbook.rgb_of(c.color, rgb(0x123456)));
        for (const unsigned shift : {0U, 8U, 16U})
            EXPECT_LE(
                std::abs(static_cast<int>(shown >> shift & 0xFFU) - static_cast<int>(c.red_first >> shift & 0xFFU)), 1)
                << std::hex << shown << " for " << c.red_first;
    }
    workbook.palette[2] = 0x112233;
    EXPECT_EQ(workbook.rgb_of(Color::indexed(10), 0), 0x112233U);
}

TEST(Colors, NearestPaletteEntries) {
    Workbook workbook;
    const std::pair<std::uint32_t, std::int32_t> cases[] = {
        {0, 1}, {255, 3}, {16711680, 5}, {32768, 10}, {16751001, 17}, {3355443, 56}, {254, 3}, {0xFFFFFF, 2}};
    for (const auto& [bgr, index] : cases) EXPECT_EQ(workbook.nearest_index(bgr), index) << bgr;
}

TEST(Workbook, FindsSheetsWhateverTheirCase) {
    Workbook workbook;
    Sheet& model = workbook.add_sheet("Model");
    EXPECT_EQ(workbook.sheet("MODEL"), &model);
    EXPECT_EQ(workbook.sheet("Mode"), nullptr);
}

TEST(Workbook, MeasuresTheNormalFontsDigits) {
    struct Case {
        const char* font;
        double size;
        std::int32_t pixels;
    };
    const Case cases[] = {
        {"Calibri", 11, 7}, {"Arial", 10, 7}, {"arial", 8, 6}, {"Aptos Narrow", 11, 7}, {"Verdana", 10, 8}};
    for (const Case& c : cases) {
        Workbook workbook;
        Font font;
        font.name = c.font;
        font.size = c.size;
        workbook.styles.named_styles[0].format.font = workbook.styles.fonts.intern(font);
        EXPECT_EQ(workbook.digit_pixels(), c.pixels) << c.font;
    }
}

}  // namespace
}  // namespace kestrune::host
