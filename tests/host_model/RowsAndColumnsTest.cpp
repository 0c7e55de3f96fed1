#include <gtest/gtest.h>

#include "host/model/ColumnWidth.h"
#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

constexpr std::int32_t last_column = formula::max_columns;
constexpr std::int32_t last_row = formula::max_rows;

std::string text(const ColumnRuns& columns) {
    std::string out;
    for (const ColumnRun& run : columns.runs())
        out += std::to_string(run.first) + "-" + std::to_string(run.last) + ":" + std::to_string(run.style) + " ";
    return out;
}

TEST(ColumnRuns, SplitAndJoin) {
    struct Case {
        std::int32_t first, last;
        StyleId style;
        const char* runs;
    };
    const Case cases[] = {
        {3, 6, 1, "3-6:1 "},
        {5, 9, 2, "3-4:1 5-9:2 "},
        {1, 1, 2, "1-1:2 3-4:1 5-9:2 "},
        {2, 4, 2, "1-9:2 "},
        {4, 4, 0, "1-3:2 5-9:2 "},
        {4, 4, 2, "1-9:2 "},
        {1, last_column, 0, ""},
        {last_column, last_column, 1, "16384-16384:1 "},
    };
    ColumnRuns columns;
    for (const Case& c : cases) {
        columns.changed = false;
        columns.change(c.first, c.last, [&](ColumnRun& run) { run.style = c.style; });
        EXPECT_EQ(text(columns), c.runs);
        EXPECT_TRUE(columns.changed);
        columns.changed = false;
        columns.change(c.first, c.last, [&](ColumnRun& run) { run.style = c.style; });
        EXPECT_FALSE(columns.changed);
    }
}

TEST(ColumnRuns, LetTheFirstOfOverlappingOnesWin) {
    ColumnRuns columns;
    for (const auto& [first, last, style] :
         {std::array{5, 9, 1}, std::array{1, 3, 2}, std::array{7, 8, 3}, std::array{8, 12, 4}})
        columns.load({.first = first, .last = last, .style = static_cast<StyleId>(style)});
    columns.finish_loading();
    EXPECT_EQ(text(columns), "1-3:2 5-9:1 10-12:4 ");
    EXPECT_EQ(columns.at(4).first, 4);
    EXPECT_EQ(columns.style_at(10), 4U);
}

TEST(ColumnWidth, RoundsToPixels) {
    struct Case {
        double set;
        std::int32_t digit, pixels;
        double read;
    };
    const Case cases[] = {
        {10.33, 7, 77, 10.29}, {8.43, 7, 64, 8.43}, {10, 7, 75, 10},     {0.5, 7, 6, 0.5},  {1, 7, 12, 1},
        {255, 7, 1790, 255},   {0, 7, 0, 0},        {9.14, 8, 78, 9.13}, {0.1, 7, 1, 0.08},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.set);
        EXPECT_EQ(pixels_of_characters(c.set, c.digit), c.pixels);
        EXPECT_DOUBLE_EQ(characters_of_pixels(c.pixels, c.digit), c.read);
    }
    for (std::int32_t digit = 3; digit < 40; ++digit)
        for (std::int32_t pixels = 0; pixels < 2000; ++pixels)
            ASSERT_EQ(pixels_of_stored_width(stored_width_of_pixels(pixels, digit), digit), pixels) << digit;
}

TEST(ColumnWidth, OfASheet) {
    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    EXPECT_DOUBLE_EQ(sheet.column_width(1), 8.43);
    sheet.defaults().default_column_width = 12.7109375;
    EXPECT_DOUBLE_EQ(sheet.column_width(1), 12);
    sheet.set_column_width(2, 3, 10.33);
    EXPECT_DOUBLE_EQ(sheet.column_width(3), 10.29);
    EXPECT_DOUBLE_EQ(sheet.columns().at(3).width, 11);
    sheet.set_column_width(3, 3, 0);
    EXPECT_EQ(sheet.column_pixels(3), 0);
    EXPECT_DOUBLE_EQ(sheet.columns().at(3).width, 11) << "what it had is for when it is shown again";
    sheet.columns().changed = false;
    sheet.set_column_width(2, 2, 10.3);
    EXPECT_FALSE(sheet.columns().changed) << "the same pixels";
}

TEST(RowHeight, RoundsToPixelsAndHides) {
    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    sheet.set_row_height(2, 3, 20.1);
    EXPECT_DOUBLE_EQ(sheet.row_height(2), 20.25);
    EXPECT_TRUE(sheet.row_format(2)->custom_height);
    sheet.rows_changed = false;
    sheet.set_row_height(2, 2, 20.3);
    EXPECT_FALSE(sheet.rows_changed);
    sheet.set_row_height(2, 2, 0);
    EXPECT_EQ(sheet.row_height(2), 0);
    sheet.change_rows(2, 2, [](RowFormat& row) { row.hidden = false; });
    EXPECT_DOUBLE_EQ(sheet.row_height(2), 20.25);
    sheet.set_row_height(1, last_row, 30);
    EXPECT_DOUBLE_EQ(sheet.row_height(2), 30);
    EXPECT_DOUBLE_EQ(sheet.row_height(last_row), 30);
    EXPECT_LT(sheet.row_formats().size(), 3U) << "a million rows were made one by one";
}

TEST(RowHeight, StaysZeroOnSheetsOfHiddenRows) {
    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    sheet.defaults().zero_height = true;
    sheet.restyle({1, 1, 1, last_column},
                  [&](StyleId id) { return workbook.styles.with_font(id, [](Font& font) { font.bold = true; }); });
    sheet.change_rows(2, 2, [](RowFormat& row) { row.outline_level = 1; });
    EXPECT_EQ(sheet.row_height(1), 0) << "a format showed the row";
    EXPECT_EQ(sheet.row_height(2), 0);
    sheet.change_rows(2, 2, [](RowFormat& row) { row.hidden = false; });
    EXPECT_EQ(sheet.row_height(2), 15);
}

TEST(Rows, ChangesLeaveNoTraceWhereNothingDiffers) {
    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    sheet.change_rows(5, 5, [](RowFormat& row) { row.hidden = true; });
    sheet.rows_changed = false;
    sheet.change_rows(1, last_row, [](RowFormat& row) { row.collapsed = false; });
    EXPECT_FALSE(sheet.rows_changed);
    EXPECT_EQ(sheet.row_formats().size(), 1U);
    sheet.change_rows(1, last_row, [](RowFormat& row) { row.hidden = false; });
    EXPECT_TRUE(sheet.rows_changed && sheet.row_format(5)->changed);
}

}  // namespace
}  // namespace kestrune::host
