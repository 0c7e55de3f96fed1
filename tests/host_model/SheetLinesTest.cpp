#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

constexpr std::int32_t last_row = formula::max_rows;
constexpr std::int32_t last_column = formula::max_columns;

class SheetLines : public ::testing::Test {
  protected:
    void draw(const Area& area, Edge edge, LineStyle style) {
        sheet.restyle(area, [&](StyleId id) {
            return workbook.styles.with_border(id, [&](Border& border) { border.line(edge).style = style; });
        });
    }
    static std::string text(std::vector<Line> lines) {
        std::string out;
        for (const Line& line : lines) out += static_cast<char>('0' + static_cast<int>(line.style));
        std::ranges::sort(out);
        return out;
    }
    LineStyle line(Position at, Edge edge) { return sheet.edge_line(at, edge).style; }

    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
};

TEST_F(SheetLines, AreOneForBothNeighbours) {
    draw({2, 2, 2, 2}, Edge::Right, LineStyle::Thin);
    EXPECT_EQ(line({2, 3}, Edge::Left), LineStyle::Thin);
    draw({2, 3, 2, 3}, Edge::Left, LineStyle::Thick);
    EXPECT_EQ(line({2, 2}, Edge::Right), LineStyle::Thin) << "a cell's own line comes first";
    sheet.clear_facing_lines({2, 3, 2, 3}, static_cast<unsigned>(Edge::Left));
    EXPECT_EQ(line({2, 2}, Edge::Right), LineStyle::Thick);
    EXPECT_EQ(line({1, 1}, Edge::Left), LineStyle::None);

    sheet.cells_changed = false;
    sheet.clear_facing_lines(Area::sheet(), 15);
    sheet.clear_facing_lines({9, 9, 10, 10}, 15);
    EXPECT_FALSE(sheet.cells_changed);
}

TEST_F(SheetLines, OfColumnsAndRows) {
    draw({1, 3, last_row, 3}, Edge::Left, LineStyle::Thin);
    draw({5, 1, 5, last_column}, Edge::Top, LineStyle::Medium);
    const Area column_b{1, 2, last_row, 2};
    EXPECT_EQ(text(sheet.edge_lines(column_b, Edge::Right)), "1");
    EXPECT_EQ(text(sheet.edge_lines(column_b, Edge::Left)), "0");
    EXPECT_EQ(text(sheet.inside_lines(column_b, false)), "02");
    EXPECT_EQ(text(sheet.inside_lines(column_b, true)), "");
    EXPECT_EQ(text(sheet.inside_lines(Area::sheet(), true)), "01");
    EXPECT_EQ(text(sheet.edge_lines({4, 1, 4, last_column}, Edge::Bottom)), "2");
    draw({last_row, 2, last_row, 2}, Edge::Bottom, LineStyle::Thick);
    EXPECT_EQ(text(sheet.edge_lines({1, 1, last_row, last_column}, Edge::Bottom)), "05");
}

TEST_F(SheetLines, BetweenTheBlankCellsOfAColumn) {
    draw({1, 2, last_row, 2}, Edge::Top, LineStyle::Thin);
    draw({1, 2, 1, 2}, Edge::Bottom, LineStyle::Thick);
    draw({4, 2, 4, 2}, Edge::Top, LineStyle::Medium);
    EXPECT_EQ(text(sheet.inside_lines({1, 2, 4, 2}, false)), "125");
    EXPECT_EQ(text(sheet.inside_lines({1, 2, 3, 2}, false)), "15");
}

// Every way of looking at many lines at once against asking cell by cell.
TEST_F(SheetLines, AgreeWithEachCellsLine) {
    std::mt19937 random(7);
    const auto pick = [&](std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random);
    };
    constexpr Edge edges[] = {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom};
    for (int step = 0; step < 300 && !HasFailure(); ++step) {
        Area area{pick(1, 6), pick(1, 6), 0, 0};
        area.last_row = pick(area.first_row, 7);
        area.last_column = pick(area.first_column, 7);
        if (step % 5 == 0) area.first_row = 1, area.last_row = last_row;
        if (step % 7 == 0) area.first_column = 1, area.last_column = last_column;
        draw(area, edges[pick(0, 3)], static_cast<LineStyle>(pick(0, 3)));

        area = {pick(1, 7), pick(1, 7), 0, 0};
        area.last_row = pick(area.first_row, 9);
        area.last_column = pick(area.first_column, 9);
        for (const Edge edge : edges) {
            std::string expected, inside;
            const bool across = edge == Edge::Left || edge == Edge::Right;
            const auto add = [](std::string& to, LineStyle style) {
                const char c = static_cast<char>('0' + static_cast<int>(style));
                if (to.find(c) == std::string::npos) to += c;
            };
            for (std::int32_t row = area.first_row; row <= area.last_row; ++row)
                for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
                    const bool rim = (edge == Edge::Left && column == area.first_column) ||
                                     (edge == Edge::Top && row == area.first_row) ||
                                     (edge == Edge::Right && column == area.last_column) ||
                                     (edge == Edge::Bottom && row == area.last_row);
                    if (rim)
                        add(expected, line({row, column}, edge));
                    else if (edge == Edge::Right || edge == Edge::Bottom)
                        add(inside, line({row, column}, edge));
                }
            std::ranges::sort(expected);
            std::ranges::sort(inside);
            EXPECT_EQ(text(sheet.edge_lines(area, edge)), expected) << step;
            if (edge == Edge::Right || edge == Edge::Bottom) {
                EXPECT_EQ(text(sheet.inside_lines(area, across)), inside) << step;
            }
        }
    }
}

}  // namespace
}  // namespace kestrune::host
