#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>

#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

// A sheet seen through bands of rows and columns that every area takes as wholes: the first six, all in the middle, and
// the last two. A naive model of one format a pair of bands says what the sheet must show.
constexpr std::size_t bands = 9;
constexpr std::size_t middle = 6;
constexpr StyleId styles = 8;

struct Axis {
    std::int32_t end;
    [[nodiscard]] std::int32_t first(std::size_t band) const {
        if (band <= middle) return static_cast<std::int32_t>(band) + 1;
        return end - static_cast<std::int32_t>(bands - 1 - band);
    }
    [[nodiscard]] std::int32_t last(std::size_t band) const { return band == middle ? end - 2 : first(band); }
};
constexpr Axis row_axis{formula::max_rows};
constexpr Axis column_axis{formula::max_columns};

struct Block {
    std::size_t top, left, bottom, right;
    [[nodiscard]] Area area() const {
        return {row_axis.first(top), column_axis.first(left), row_axis.last(bottom), column_axis.last(right)};
    }
};

class RestyleRandom : public ::testing::TestWithParam<unsigned> {
  protected:
    RestyleRandom() {
        for (StyleId id = 1; id < styles; ++id) {
            CellFormat format;
            format.alignment.indent = static_cast<std::int32_t>(id);
            workbook.styles.formats.append(format);
        }
    }

    std::size_t pick(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(random); }

    // Wholes come often: that is where rows and columns cross.
    Block block(bool rim_in_middle) {
        const auto range = [&](std::size_t& first, std::size_t& last) {
            if (pick(3) == 0) {
                first = 0;
                last = bands - 1;
                return;
            }
            do {
                first = pick(bands);
                last = pick(bands);
                if (first > last) std::swap(first, last);
            } while (!rim_in_middle && (first == middle || last == middle));
        };
        Block b{};
        range(b.top, b.bottom);
        range(b.left, b.right);
        return b;
    }

    template <class Visit>
    void each(const Block& b, Visit visit) {
        for (std::size_t r = b.top; r <= b.bottom; ++r)
            for (std::size_t c = b.left; c <= b.right; ++c) visit(r, c);
    }

    void restyle(bool by_edge) {
        const Block b = block(!by_edge);
        const Area area = b.area();
        std::array<std::array<StyleId, styles>, 16> map{};
        const std::size_t kind = pick(3);
        const auto constant = static_cast<StyleId>(pick(styles));
        for (auto& of_edges : map)
            for (StyleId id = 0; id < styles; ++id)
                of_edges[id] = kind == 0 ? constant : kind == 1 ? id : static_cast<StyleId>(pick(styles));
        if (kind == 1) map[0][pick(styles)] = constant;

        std::set<std::pair<StyleId, unsigned>> shown, asked;
        bool differs = false;
        each(b, [&](std::size_t r, std::size_t c) {
            unsigned edges = 0;
            if (by_edge)
                edges = (c == b.left ? 1U : 0U) | (r == b.top ? 2U : 0U) | (c == b.right ? 4U : 0U) |
                        (r == b.bottom ? 8U : 0U);
            shown.emplace(naive[r][c], edges);
            const StyleId next = map[edges][naive[r][c]];
            differs = differs || next != naive[r][c];
            naive[r][c] = next;
        });
        const auto ask = [&](StyleId id, unsigned edges) {
            EXPECT_TRUE(asked.emplace(id, edges).second) << "asked twice for " << id;
            return map[edges][id];
        };
        sheet.cells_changed = sheet.rows_changed = sheet.columns().changed = false;
        if (by_edge)
            sheet.restyle_by_edge(area, ask);
        else
            sheet.restyle(area, [&](StyleId id) { return ask(id, 0); });
        EXPECT_EQ(asked, shown);
        EXPECT_EQ(sheet.changed(), differs);
    }

    void disturb() {
        const Block b = block(true);
        const auto style = static_cast<StyleId>(pick(styles));
        const std::size_t row = pick(middle);
        const std::size_t column = pick(middle);
        switch (pick(3)) {
            case 0:
                sheet.set_content({row_axis.first(row), column_axis.first(column)}, CellContent::of(1.0));
                break;
            case 1:
                for (std::size_t c = 0; c < bands; ++c)
                    for (std::int32_t at : {column_axis.first(c), column_axis.last(c)})
                        if (!sheet.find({row_axis.first(row), at})) naive[row][c] = style;
                // The middle's cells stand for all of it or none, so the middle is never stored in part.
                sheet.change_rows(row_axis.first(row), row_axis.last(row), [&](RowFormat& format) {
                    format.has_style = true;
                    format.style = style;
                });
                break;
            default:
                sheet.clear_content(b.area());
                break;
        }
    }

    void compare() {
        each({0, 0, bands - 1, bands - 1}, [&](std::size_t r, std::size_t c) {
            for (const Position at :
                 {Position{row_axis.first(r), column_axis.first(c)}, Position{row_axis.last(r), column_axis.last(c)},
                  Position{(row_axis.first(r) + row_axis.last(r)) / 2, column_axis.first(c)}})
                ASSERT_EQ(sheet.style_at(at), naive[r][c]) << "row " << at.row << " column " << at.column;
        });
        const Block b = block(true);
        std::set<StyleId> shown;
        each(b, [&](std::size_t r, std::size_t c) { shown.insert(naive[r][c]); });
        const std::vector<StyleId> found = sheet.styles_in(b.area());
        EXPECT_EQ(std::set<StyleId>(found.begin(), found.end()), shown);
        EXPECT_EQ(found.size(), shown.size());
        EXPECT_EQ(found.front(), naive[b.top][b.left]);
        for (const auto& column : sheet.cell_columns())
            if (column) {
                ASSERT_TRUE(std::ranges::is_sorted(column->cells, std::ranges::less_equal{}, &Cell::row));
            }
    }

    std::mt19937 random{GetParam()};
    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    std::array<std::array<StyleId, bands>, bands> naive{};
};

TEST_P(RestyleRandom, ShowsWhatANaiveModelShows) {
    for (int step = 0; step < 300 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        if (pick(4) == 0) disturb();
        restyle(pick(3) == 0);
        compare();
    }
    // However many wholes crossed, the middle was never filled cell by cell.
    EXPECT_LT(sheet.stored_cells(), 100);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RestyleRandom, ::testing::Range(1U, 7U));

}  // namespace
}  // namespace kestrune::host
