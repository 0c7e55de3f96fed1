#include <gtest/gtest.h>

#include "host_model/SheetPicture.h"

namespace kestrune::host {
namespace {

constexpr std::int32_t last_row = formula::max_rows;
constexpr std::int32_t last_column = formula::max_columns;
constexpr Area column_b{1, 2, last_row, 2};
constexpr Area row_2{2, 1, 2, last_column};

struct Step {
    Area area;
    StyleId style;
};

struct Case {
    const char* name;
    std::vector<Position> cells;
    std::vector<Step> steps;
    const char* picture;  // of A1:D4
    std::int64_t stored;
};

const Case cases[] = {
    {"a block gets cells",
     {},
     {{{2, 2, 3, 3}, 1}},
     " 0 0 0 0 \n"
     " 0 1*1*0 \n"
     " 0 1*1*0 \n"
     " 0 0 0 0 \n",
     4},
    {"a column keeps its format on itself",
     {{3, 2}},
     {{column_b, 1}},
     " 0 1 0 0 \n"
     " 0 1 0 0 \n"
     " 0 1*0 0 \n"
     " 0 1 0 0 \n",
     1},
    {"a row keeps its format on itself",
     {{2, 3}},
     {{row_2, 1}},
     " 0 0 0 0 \n"
     "-1 1 1*1 \n"
     " 0 0 0 0 \n"
     " 0 0 0 0 \n",
     1},
    {"a column over a row gets a cell where they cross",
     {},
     {{row_2, 1}, {column_b, 2}},
     " 0 2 0 0 \n"
     "-1 2*1 1 \n"
     " 0 2 0 0 \n"
     " 0 2 0 0 \n",
     1},
    {"a row over a column needs no cell when both end alike",
     {},
     {{column_b, 2}, {row_2, 1}},
     " 0 2 0 0 \n"
     "-1 1 1 1 \n"
     " 0 2 0 0 \n"
     " 0 2 0 0 \n",
     0},
    {"the sheet changes columns, rows and cells",
     {{4, 4}},
     {{column_b, 2}, {row_2, 1}, {Area::sheet(), 3}},
     " 3 3 3 3 \n"
     "-3 3 3 3 \n"
     " 3 3 3 3 \n"
     " 3 3 3 3*\n",
     1},
    {"all rows but the first leave that one alone",
     {},
     {{{2, 1, last_row, last_column}, 1}},
     "-0 0 0 0 \n"
     " 1 1 1 1 \n"
     " 1 1 1 1 \n"
     " 1 1 1 1 \n",
     0},
    {"the rest of a column gives the cell above its old look",
     {},
     {{{2, 2, last_row, 2}, 1}},
     " 0 0*0 0 \n"
     " 0 1 0 0 \n"
     " 0 1 0 0 \n"
     " 0 1 0 0 \n",
     1},
    {"nothing comes of a format that is there already",
     {},
     {{column_b, 1}, {{1, 2, 4, 2}, 1}},
     " 0 1 0 0 \n"
     " 0 1 0 0 \n"
     " 0 1 0 0 \n"
     " 0 1 0 0 \n",
     0},
    {"a block beside stored cells fills the holes only",
     {{1, 1}, {3, 1}, {4, 1}},
     {{{1, 1, 4, 4}, 1}, {{2, 1, 4, 1}, 2}},
     " 1*1*1*1*\n"
     " 2*1*1*1*\n"
     " 2*1*1*1*\n"
     " 2*1*1*1*\n",
     16},
    {"a column that differs in a row of another base",
     {},
     {{Area::sheet(), 4}, {column_b, 5}, {row_2, 4}},
     " 4 5 4 4 \n"
     " 4 4*4 4 \n"
     " 4 5 4 4 \n"
     " 4 5 4 4 \n",
     1},
};

TEST(Restyle, PutsFormatsWhereTheyCostLeast) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Workbook workbook;
        add_styles(workbook);
        Sheet& sheet = workbook.add_sheet("Sheet1");
        for (const Position at : c.cells) sheet.set_content(at, CellContent::of(1.0));
        for (const Step& step : c.steps) sheet.restyle(step.area, [&](StyleId) { return step.style; });
        EXPECT_EQ(picture(sheet, 4, 4), c.picture);
        EXPECT_EQ(sheet.stored_cells(), c.stored);
    }
}

TEST(Restyle, OutlinesAreasByTheirEdges) {
    struct Outline {
        const char* name;
        Area area;
        const char* picture;  // of A1:D4; a format is the sum of its edges, 9 for both bottom and left
        std::int64_t stored;
    };
    const Outline outlines[] = {
        {"a block",
         {1, 1, 3, 3},
         " 3*2*6*0 \n"
         " 1*0 4*0 \n"
         " 9*8*7*0 \n"
         " 0 0 0 0 \n",
         8},
        {"columns: lines at the sides on the columns, at the ends on cells",
         {1, 1, last_row, 3},
         " 3*2*6*0 \n"
         " 1 0 4 0 \n"
         " 1 0 4 0 \n"
         " 1 0 4 0 \n",
         6},
        {"rows",
         {2, 1, 3, last_column},
         " 0 0 0 0 \n"
         "-3*2 2 2 \n"
         "-9*8 8 8 \n"
         " 0 0 0 0 \n",
         4},
        {"a cell alone",
         {2, 2, 2, 2},
         " 0 0 0 0 \n"
         " 0 5*0 0 \n"
         " 0 0 0 0 \n"
         " 0 0 0 0 \n",
         1},
    };
    for (const Outline& outline : outlines) {
        SCOPED_TRACE(outline.name);
        Workbook workbook;
        add_styles(workbook);
        Sheet& sheet = workbook.add_sheet("Sheet1");
        // 12 and 15 have no digit: bottom right reads 7, all four 5.
        sheet.restyle_by_edge(outline.area, [](StyleId, unsigned edges) {
            return edges == 12 ? 7 : edges == 15 ? 5 : edges;
        });
        EXPECT_EQ(picture(sheet, 4, 4), outline.picture);
        EXPECT_EQ(sheet.stored_cells(), outline.stored);
    }
}

TEST(Restyle, MarksOnlyWhatDiffers) {
    Workbook workbook;
    add_styles(workbook);
    Sheet& sheet = workbook.add_sheet("Sheet1");
    for (const Area& area : {Area{1, 1, 9, 9}, Area::sheet(), column_b, row_2})
        sheet.restyle(area, [](StyleId id) { return id; });
    EXPECT_FALSE(sheet.changed());
    sheet.restyle(row_2, [](StyleId) { return 1U; });
    EXPECT_TRUE(sheet.rows_changed && !sheet.cells_changed && !sheet.columns().changed);
    EXPECT_TRUE(sheet.row_format(2)->changed);
    sheet.rows_changed = false;
    sheet.restyle({3, 1, 3, 20}, [](StyleId) { return 1U; });
    EXPECT_TRUE(sheet.cells_changed && !sheet.rows_changed && !sheet.columns().changed);
    EXPECT_EQ(sheet.find({3, 1})->flags & Cell::content_changed, 0);
}

TEST(Restyle, ChangesNothingWhenTheMapFails) {
    Workbook workbook;
    add_styles(workbook);
    Sheet& sheet = workbook.add_sheet("Sheet1");
    sheet.restyle({1, 1, 3, 3}, [](StyleId) { return 1U; });
    sheet.restyle(column_b, [](StyleId) { return 2U; });
    const std::string before = picture(sheet, 4, 4);
    for (const Area& area : {Area::sheet(), column_b, row_2, Area{1, 1, 9, 9}, Area{2, 2, 2, 3}}) {
        // The column's format comes last in some areas, after others have been answered.
        EXPECT_ANY_THROW(sheet.restyle(area, [](StyleId id) -> StyleId {
            if (id == 2) throw 1;
            return 3;
        }));
        EXPECT_EQ(picture(sheet, 4, 4), before);
    }
}

}  // namespace
}  // namespace kestrune::host
