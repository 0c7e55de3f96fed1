#include <algorithm>
#include <cstdint>
#include <functional>
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

// The cells one further in an edge's direction.
Area shifted(const Area& area, Edge edge) {
    const Position first = neighbour_of(area.top_left(), edge);
    const Position last = neighbour_of({area.last_row, area.last_column}, edge);
    return {first.row, first.column, last.row, last.column};
}

// Where two neighbours do not both draw the line that shows between them.
class LinesToSettle {
  public:
    // Neighbours that draw nothing are left so unless they `all` take the line.
    LinesToSettle(const StyleTable& styles, Edge edge, bool all) : styles_(styles), edge_(edge), all_(all) {}

    void operator()(const Area& cells, StyleId own, StyleId neighbour) {
        const Line& mine = styles_.border_of(own).line(edge_);
        const Line& theirs = styles_.border_of(neighbour).line(facing(edge_));
        const bool theirs_drawn = theirs.style != LineStyle::None;
        if (mine.style == LineStyle::None && !theirs_drawn) return;
        const Line& shown = mine.style != LineStyle::None ? mine : theirs;
        const UnsettledLine line{cells, shown, !(mine == shown), !(theirs == shown) && (all_ || theirs_drawn)};
        if (!line.own && !line.neighbour) return;
        if (lines_.empty() || !lines_.back().take(line)) lines_.push_back(line);
    }
    std::vector<UnsettledLine> take() { return std::move(lines_); }

  private:
    const StyleTable& styles_;
    Edge edge_;
    bool all_;
    std::vector<UnsettledLine> lines_;
};

}  // namespace

bool UnsettledLine::take(const UnsettledLine& next) {
    const Area& more = next.cells;
    if (cells.first_column != more.first_column || cells.last_column != more.last_column ||
        cells.last_row + 1 != more.first_row || !(shown == next.shown) || own != next.own ||
        neighbour != next.neighbour) {
        return false;
    }
    cells.last_row = more.last_row;
    return true;
}

// Visits (first row, last row, style in column, style in column + 1) from top to bottom, rows where both are blank
// together.
template <class Visit>
void Sheet::visit_beside(std::int32_t column, std::int32_t first_row, std::int32_t last_row, Visit&& visit) {
    const std::span<const Cell> left = cells_between(column, first_row, last_row);
    const std::span<const Cell> right = cells_between(column + 1, first_row, last_row);
    const StyleId plain_left = columns_.style_at(column);
    const StyleId plain_right = columns_.style_at(column + 1);
    const auto styled = styled_rows_in(first_row, last_row);
    constexpr auto none = std::numeric_limits<std::int32_t>::max();
    const auto next_row = [](const auto& rows, std::size_t at) { return at < rows.size() ? rows[at].row : none; };
    std::int32_t next = first_row;
    for (std::size_t l = 0, r = 0, s = 0;;) {
        const std::int32_t row_left = next_row(left, l);
        const std::int32_t row_right = next_row(right, r);
        const std::int32_t row_styled = next_row(styled, s);
        const std::int32_t row = std::min({row_left, row_right, row_styled});
        if (row == none) break;
        if (row > next) visit(next, row - 1, plain_left, plain_right);
        StyleId style_left = plain_left;
        StyleId style_right = plain_right;
        if (row == row_styled) style_left = style_right = styled[s++].style;
        if (row == row_left) style_left = left[l++].style;
        if (row == row_right) style_right = right[r++].style;
        visit(row, row, style_left, style_right);
        next = row + 1;
    }
    if (next <= last_row) visit(next, last_row, plain_left, plain_right);
}

// Visits (first row, last row, style, style below) of neighbouring rows of one column, likewise; the last row that is
// visited is the one above last_row.
template <class Visit>
void Sheet::visit_below(std::int32_t column, std::int32_t first_row, std::int32_t last_row, Visit&& visit) {
    const StyleId plain = columns_.style_at(column);
    std::int32_t row_before = first_row - 1;
    StyleId style_before = plain;
    const auto plain_rows = [&](std::int32_t end) {  // from below row_before to above end
        if (row_before >= first_row) visit(row_before, row_before, style_before, plain);
        if (end > row_before + 2) visit(row_before + 1, end - 2, plain, plain);
    };
    const auto step = [&](std::int32_t row, StyleId style) {
        if (row > row_before + 1) {
            plain_rows(row);
            visit(row - 1, row - 1, plain, style);
        } else if (row_before >= first_row) {
            visit(row_before, row_before, style_before, style);
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
    if (row_before < last_row) plain_rows(last_row + 1);
}

// Columns that are alike all down: each one that has cells stands for itself, beyond them one for its run.
std::vector<Sheet::Columns> Sheet::alike_columns(std::int32_t first, std::int32_t last) {
    std::vector<Columns> alike;
    const auto with_cells = static_cast<std::int32_t>(cells_.size());
    for (std::int32_t column = first; column <= std::min(last, with_cells); ++column) alike.push_back({column, column});
    if (last > with_cells) {
        columns_.visit(std::max(first, with_cells + 1), last, [&](const ColumnRun& run) {
            alike.push_back({run.first, run.last});
        });
    }
    return alike;
}

// Visits (cells, their style, the style of those across the edge) of the cells along one side of an area. The side must
// have cells beyond it.
template <class Visit>
void Sheet::visit_rim(const Area& area, Edge edge, Visit&& visit) {
    const Area side = rim(area, edge);
    if (edge == Edge::Left || edge == Edge::Right) {
        const std::int32_t column = side.first_column;
        visit_beside(edge == Edge::Left ? column - 1 : column, side.first_row, side.last_row,
                     [&](std::int32_t first, std::int32_t last, StyleId left, StyleId right) {
                         const Area cells{first, column, last, column};
                         if (edge == Edge::Left)
                             visit(cells, right, left);
                         else
                             visit(cells, left, right);
                     });
    } else {
        for (const auto [first, last] : alike_columns(side.first_column, side.last_column)) {
            const Position own{side.first_row, first};
            visit(Area{own.row, first, own.row, last}, style_at(own), style_at(neighbour_of(own, edge)));
        }
    }
}

// Likewise of the cells left of (or above) the lines inside an area.
template <class Visit>
void Sheet::visit_inside(const Area& area, bool between_columns, Visit&& visit) {
    for (const auto [first, last] : alike_columns(area.first_column, area.last_column)) {
        const auto visit_columns = [&](std::int32_t first_column, std::int32_t last_column) {
            return [&visit, first_column, last_column](std::int32_t first_row, std::int32_t last_row, StyleId own,
                                                       StyleId neighbour) {
                visit(Area{first_row, first_column, last_row, last_column}, own, neighbour);
            };
        };
        if (!between_columns) {
            if (area.rows() > 1) visit_below(first, area.first_row, area.last_row, visit_columns(first, last));
            continue;
        }
        if (last > first) visit_beside(first, area.first_row, area.last_row, visit_columns(first, last - 1));
        if (last < area.last_column) visit_beside(last, area.first_row, area.last_row, visit_columns(last, last));
    }
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
    const Area side = rim(area, edge);
    if (!neighbour_of(side.top_left(), edge).on_sheet()) {
        for (const StyleId own : styles_in(side)) seen.add_outermost(own);
    } else {
        visit_rim(area, edge, [&](const Area&, StyleId own, StyleId neighbour) { seen.add(own, neighbour); });
    }
    return seen.take();
}

std::vector<Line> Sheet::inside_lines(const Area& area, bool between_columns) {
    ensure_loaded();
    LinesSeen seen(workbook_.styles, between_columns ? Edge::Right : Edge::Bottom);
    visit_inside(area, between_columns, [&](const Area&, StyleId own, StyleId neighbour) { seen.add(own, neighbour); });
    return seen.take();
}

void Sheet::settle_edge_lines(const Area& area, Edge edge) {
    ensure_loaded();
    if (!neighbour_of(rim(area, edge).top_left(), edge).on_sheet()) return;
    LinesToSettle lines(workbook_.styles, edge, false);
    visit_rim(area, edge, std::ref(lines));
    settle(lines.take(), edge);
}

void Sheet::settle_inside_lines(const Area& area, bool between_columns) {
    ensure_loaded();
    const Edge edge = between_columns ? Edge::Right : Edge::Bottom;
    LinesToSettle lines(workbook_.styles, edge, true);
    visit_inside(area, between_columns, std::ref(lines));
    settle(lines.take(), edge);
}

void Sheet::settle(const std::vector<UnsettledLine>& lines, Edge edge) {
    for (const UnsettledLine& each : lines) {
        const auto draw = [&](const Area& cells, Edge side) {
            restyle(cells, [&](StyleId style) {
                if (workbook_.styles.border_of(style).line(side) == each.shown) return style;
                return workbook_.styles.with_border(style, [&](Border& border) { border.line(side) = each.shown; });
            });
        };
        if (each.own) draw(each.cells, edge);
        if (each.neighbour) draw(shifted(each.cells, edge), facing(edge));
    }
}

void Sheet::clear_facing_lines(const Area& area, unsigned edges) {
    for (const Edge edge : {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom}) {
        const Area neighbours = shifted(rim(area, edge), edge);
        if ((edges & static_cast<unsigned>(edge)) == 0 || !neighbours.top_left().on_sheet()) continue;
        restyle(neighbours, [&](StyleId style) {
            return workbook_.styles.border_of(style).line(facing(edge)).style == LineStyle::None
                       ? style
                       : workbook_.styles.with_border(style, [&](Border& border) { border.line(facing(edge)) = {}; });
        });
    }
}

}  // namespace kestrune::host
