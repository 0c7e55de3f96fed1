#include <algorithm>
#include <cstdint>
#include <limits>
#include <unordered_set>
#include <utility>

#include "host/model/Sheet.h"
#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

// The distinct lines between pairs of neighbours, each pair of formats looked at once.
class LinesSeen {
  public:
    LinesSeen(const StyleTable& styles, Edge edge) : styles_(styles), edge_(edge) {}

    // The cell itself, and the neighbour across its edge.
    void add(StyleId own, StyleId neighbour) {
        const std::uint64_t pair = std::uint64_t{own} << 32U | neighbour;
        // Neighbours down a column are mostly alike.
        if (pair == last_pair_) return;
        last_pair_ = pair;
        if (!pairs_.insert(pair).second) return;
        const Line& line = styles_.border_of(own).line(edge_);
        add(line.style != LineStyle::None ? line : styles_.border_of(neighbour).line(facing(edge_)));
    }
    void add_outermost(StyleId own) { add(styles_.border_of(own).line(edge_)); }
    std::vector<Line> take() { return std::move(lines_); }

  private:
    void add(const Line& line) {
        // A colour without a line is not to be seen.
        const Line shown = line.style == LineStyle::None ? Line{} : line;
        if (std::ranges::find(lines_, shown) == lines_.end()) lines_.push_back(shown);
    }

    const StyleTable& styles_;
    Edge edge_;
    std::uint64_t last_pair_ = ~std::uint64_t{0};
    std::unordered_set<std::uint64_t> pairs_;
    std::vector<Line> lines_;
};

Position neighbour_of(Position at, Edge edge) {
    switch (edge) {
        case Edge::Left:
            return {at.row, at.column - 1};
        case Edge::Top:
            return {at.row - 1, at.column};
        case Edge::Right:
            return {at.row, at.column + 1};
        default:
            return {at.row + 1, at.column};
    }
}

// The cells of an area that lie along one of its sides.
Area rim(Area area, Edge edge) {
    switch (edge) {
        case Edge::Left:
            area.last_column = area.first_column;
            break;
        case Edge::Top:
            area.last_row = area.first_row;
            break;
        case Edge::Right:
            area.first_column = area.last_column;
            break;
        case Edge::Bottom:
            area.first_row = area.last_row;
            break;
    }
    return area;
}

// The same many cells beyond that side.
Area beyond(const Area& area, Edge edge) {
    const Area side = rim(area, edge);
    const Position first = neighbour_of(side.top_left(), edge);
    const Position last = neighbour_of({side.last_row, side.last_column}, edge);
    return {first.row, first.column, last.row, last.column};
}

}  // namespace

// Visits (style in column, style in column + 1) of every row, rows where both are blank once for all.
template <class Visit>
void Sheet::visit_beside(std::int32_t column, std::int32_t first_row, std::int32_t last_row, Visit&& visit) {
    const std::span<const Cell> left = cells_between(column, first_row, last_row);
    const std::span<const Cell> right = cells_between(column + 1, first_row, last_row);
    const StyleId plain_left = columns_.style_at(column);
    const StyleId plain_right = columns_.style_at(column + 1);
    const auto styled = styled_rows_in(first_row, last_row);
    constexpr auto none = std::numeric_limits<std::int32_t>::max();
    const auto next_row = [](const auto& rows, std::size_t at) { return at < rows.size() ? rows[at].row : none; };
    std::int64_t visited = 0;
    for (std::size_t l = 0, r = 0, s = 0;; ++visited) {
        const std::int32_t row_left = next_row(left, l);
        const std::int32_t row_right = next_row(right, r);
        const std::int32_t row_styled = next_row(styled, s);
        const std::int32_t row = std::min({row_left, row_right, row_styled});
        if (row == none) break;
        StyleId style_left = plain_left;
        StyleId style_right = plain_right;
        if (row == row_styled) style_left = style_right = styled[s++].style;
        if (row == row_left) style_left = left[l++].style;
        if (row == row_right) style_right = right[r++].style;
        visit(style_left, style_right);
    }
    if (visited < last_row - first_row + 1) visit(plain_left, plain_right);
}

// Visits (style, style below) of neighbouring rows of one column, likewise.
template <class Visit>
void Sheet::visit_below(std::int32_t column, std::int32_t first_row, std::int32_t last_row, Visit&& visit) {
    const StyleId plain = columns_.style_at(column);
    std::int32_t row_before = first_row - 1;
    StyleId style_before = plain;
    const auto step = [&](std::int32_t row, StyleId style) {
        if (row > row_before + 1) {
            if (row_before >= first_row) visit(style_before, plain);
            if (row > row_before + 2) visit(plain, plain);
            visit(plain, style);
        } else if (row_before >= first_row) {
            visit(style_before, style);
        }
        row_before = row;
        style_before = style;
    };
    const auto styled = styled_rows_in(first_row, last_row);
    auto row = styled.begin();
    for (const Cell& cell : cells_between(column, first_row, last_row)) {
        for (; row != styled.end() && row->row <= cell.row; ++row)
            if (row->row < cell.row) step(row->row, row->style);
        step(cell.row, cell.style);
    }
    for (; row != styled.end(); ++row) step(row->row, row->style);
    if (row_before < last_row) {
        if (row_before >= first_row) visit(style_before, plain);
        if (row_before + 1 < last_row) visit(plain, plain);
    }
}

// The columns that stand for all of first..last: those with cells, and the first and last of each run beyond.
std::vector<std::int32_t> Sheet::telling_columns(std::int32_t first, std::int32_t last) {
    std::vector<std::int32_t> telling;
    const auto with_cells = static_cast<std::int32_t>(cells_.size());
    for (std::int32_t column = first; column <= std::min(last, with_cells); ++column) telling.push_back(column);
    if (last > with_cells)
        columns_.visit(std::max(first, with_cells + 1), last, [&](const ColumnRun& run) {
            telling.push_back(run.first);
            if (run.last > run.first) telling.push_back(run.last);
        });
    return telling;
}

Line Sheet::edge_line(Position at, Edge edge) {
    const StyleTable& styles = workbook_.styles;
    const Line& own = styles.border_of(style_at(at)).line(edge);
    if (own.style != LineStyle::None) return own;
    const Position neighbour = neighbour_of(at, edge);
    if (!neighbour.on_sheet()) return {};
    const Line& other = styles.border_of(style_at(neighbour)).line(facing(edge));
    return other.style == LineStyle::None ? Line{} : other;
}

std::vector<Line> Sheet::edge_lines(const Area& area, Edge edge) {
    ensure_loaded();
    LinesSeen seen(workbook_.styles, edge);
    const auto add = [&](StyleId own, StyleId neighbour) { seen.add(own, neighbour); };
    const auto add_turned = [&](StyleId neighbour, StyleId own) { seen.add(own, neighbour); };
    const Area side = rim(area, edge);
    if (!neighbour_of(side.top_left(), edge).on_sheet()) {
        for (const StyleId own : styles_in(side)) seen.add_outermost(own);
    } else if (edge == Edge::Left) {
        visit_beside(side.first_column - 1, side.first_row, side.last_row, add_turned);
    } else if (edge == Edge::Right) {
        visit_beside(side.first_column, side.first_row, side.last_row, add);
    } else {
        for (const std::int32_t column : telling_columns(side.first_column, side.last_column)) {
            const Position own{side.first_row, column};
            seen.add(style_at(own), style_at(neighbour_of(own, edge)));
        }
    }
    return seen.take();
}

std::vector<Line> Sheet::inside_lines(const Area& area, bool between_columns) {
    ensure_loaded();
    LinesSeen seen(workbook_.styles, between_columns ? Edge::Right : Edge::Bottom);
    const auto add = [&](StyleId own, StyleId neighbour) { seen.add(own, neighbour); };
    if (between_columns) {
        for (const std::int32_t column : telling_columns(area.first_column, area.last_column))
            if (column < area.last_column) visit_beside(column, area.first_row, area.last_row, add);
    } else if (area.rows() > 1) {
        for (const std::int32_t column : telling_columns(area.first_column, area.last_column))
            visit_below(column, area.first_row, area.last_row, add);
    }
    return seen.take();
}

void Sheet::clear_facing_lines(const Area& area, unsigned edges) {
    for (const Edge edge : {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom}) {
        const Area neighbours = beyond(area, edge);
        if ((edges & static_cast<unsigned>(edge)) == 0 || !neighbours.top_left().on_sheet()) continue;
        restyle(neighbours, [&](StyleId style) {
            return workbook_.styles.border_of(style).line(facing(edge)).style == LineStyle::None
                       ? style
                       : workbook_.styles.with_border(style, [&](Border& border) { border.line(facing(edge)) = {}; });
        });
    }
}

}  // namespace kestrune::host
