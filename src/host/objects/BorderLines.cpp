#include "host/objects/BorderLines.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

using Change = std::function<void(Line&)>;

constexpr Edge all_edges[] = {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom};

Edge edge_of(std::int32_t index) {
    switch (index) {
        case xlEdgeLeft:
            return Edge::Left;
        case xlEdgeTop:
            return Edge::Top;
        case xlEdgeBottom:
            return Edge::Bottom;
        default:
            return Edge::Right;
    }
}

// The cells of an area along one of its sides.
Area strip_of(const Area& area, Edge edge) {
    switch (edge) {
        case Edge::Left:
            return {area.first_row, area.first_column, area.last_row, area.first_column};
        case Edge::Top:
            return {area.first_row, area.first_column, area.first_row, area.last_column};
        case Edge::Right:
            return {area.first_row, area.last_column, area.last_row, area.last_column};
        default:
            return {area.last_row, area.first_column, area.last_row, area.last_column};
    }
}

// The cells beyond that side; nothing at the sheet's own edge.
std::optional<Area> neighbours_of(const Area& area, Edge edge) {
    Area strip = strip_of(area, edge);
    const std::int32_t down = edge == Edge::Top ? -1 : (edge == Edge::Bottom ? 1 : 0);
    const std::int32_t right = edge == Edge::Left ? -1 : (edge == Edge::Right ? 1 : 0);
    strip.first_row += down;
    strip.last_row += down;
    strip.first_column += right;
    strip.last_column += right;
    if (!strip.top_left().on_sheet() || !Position{strip.last_row, strip.last_column}.on_sheet()) return std::nullopt;
    return strip;
}

void add(std::vector<Line>& all, const std::vector<Line>& more) {
    for (const Line& line : more) {
        if (std::ranges::find(all, line) == all.end()) all.push_back(line);
    }
}

std::vector<Line> diagonals(const CellRange& cells, std::int32_t index) {
    std::vector<Line> lines;
    for (const StyleId id : cells.formats()) {
        const Border& border = cells.styles().border_of(id);
        const bool drawn = index == xlDiagonalDown ? border.diagonal_down : border.diagonal_up;
        add(lines, {drawn ? border.diagonal : Line{}});
    }
    return lines;
}

class Writer {
  public:
    Writer(const CellRange& cells, const Change& change) : cells_(cells), change_(change) {}

    void diagonal(std::int32_t index) const {
        for (const Area& area : cells_.areas()) {
            restyle(area, [&](Border& border) {
                bool& drawn = index == xlDiagonalDown ? border.diagonal_down : border.diagonal_up;
                const bool other = index == xlDiagonalDown ? border.diagonal_up : border.diagonal_down;
                Line line = drawn ? border.diagonal : Line{};
                change_(line);
                drawn = line.style != LineStyle::None;
                // Both diagonals of a cell share one line.
                if (drawn || !other) border.diagonal = line;
            });
        }
    }

    // One line shows between neighbours, whichever of them stores it, and that line is what changes, on both sides.
    void rim(const Area& area, Edge edge) const {
        const Change become = becoming(cells_.sheet().edge_lines(area, edge), [&] { settle_rim(area, edge); });
        restyle(strip_of(area, edge), [&](Border& border) { become(border.line(edge)); });
        follow(area, edge, become);
    }

    void inside(const Area& area, bool between_columns) const {
        const std::vector<Line> shown = cells_.sheet().inside_lines(area, between_columns);
        if (shown.empty()) return;
        const Change become = becoming(shown, [&] { cells_.sheet().settle_inside_lines(area, between_columns); });
        Area before = area;
        Area after = area;
        (between_columns ? before.last_column : before.last_row) -= 1;
        (between_columns ? after.first_column : after.first_row) += 1;
        const Edge trailing = between_columns ? Edge::Right : Edge::Bottom;
        restyle(before, [&](Border& border) { become(border.line(trailing)); });
        restyle(after, [&](Border& border) { become(border.line(facing(trailing))); });
    }

    void everything(const Area& area) const {
        std::vector<Line> shown;
        for (const Edge edge : all_edges) add(shown, cells_.sheet().edge_lines(area, edge));
        add(shown, cells_.sheet().inside_lines(area, true));
        add(shown, cells_.sheet().inside_lines(area, false));
        const Change become = becoming(shown, [&] {
            cells_.sheet().settle_inside_lines(area, true);
            cells_.sheet().settle_inside_lines(area, false);
            for (const Edge edge : all_edges) settle_rim(area, edge);
        });
        restyle(area, [&](Border& border) {
            for (const Edge edge : all_edges) become(border.line(edge));
        });
        for (const Edge edge : all_edges) follow(area, edge, become);
    }

  private:
    // What each of the shown lines becomes. Where they become one, that is what every cell draws; else each side of a
    // line must draw it first, so that both become the same.
    [[nodiscard]] Change becoming(const std::vector<Line>& shown, const std::function<void()>& settle) const {
        std::vector<Line> distinct;
        for (Line line : shown) {
            change_(line);
            add(distinct, {line});
        }
        if (distinct.size() == 1) return [line = distinct.front()](Line& drawn) { drawn = line; };
        settle();
        return [this](Line& drawn) {
            if (drawn.style == LineStyle::None) drawn = {};
            change_(drawn);
        };
    }

    void settle_rim(const Area& area, Edge edge) const { cells_.sheet().settle_edge_lines(area, edge); }

    void restyle(const Area& area, const std::function<void(Border&)>& change) const {
        cells_.sheet().restyle(area, [&](StyleId id) { return cells_.styles().with_border(id, change); });
    }

    // The neighbours' side of the line, where they draw one of their own.
    void follow(const Area& area, Edge edge, const Change& become) const {
        const auto neighbours = neighbours_of(area, edge);
        if (!neighbours) return;
        const Edge side = facing(edge);
        const auto after = [&](StyleId id) {
            Line line = cells_.styles().border_of(id).line(side);
            if (line.style != LineStyle::None) become(line);
            return line;
        };
        const auto differs = [&](StyleId id) { return !(after(id) == cells_.styles().border_of(id).line(side)); };
        if (std::ranges::none_of(cells_.sheet().styles_in(*neighbours), differs)) return;
        cells_.sheet().restyle(*neighbours, [&](StyleId id) {
            if (!differs(id)) return id;
            return cells_.styles().with_border(id, [&](Border& border) { border.line(side) = after(id); });
        });
    }

    const CellRange& cells_;
    const Change& change_;
};

bool inside_exists(const Area& area, std::int32_t index) {
    return index == xlInsideVertical ? area.columns() > 1 : area.rows() > 1;
}

}  // namespace

std::vector<Line> lines_of(const CellRange& cells, std::int32_t index) {
    if (index == xlDiagonalDown || index == xlDiagonalUp) return diagonals(cells, index);
    std::vector<Line> lines;
    for (const Area& area : cells.areas()) {
        if (index == all_lines) {
            for (const Edge edge : all_edges) add(lines, cells.sheet().edge_lines(area, edge));
        }
        if (index == all_lines || index == xlInsideVertical) add(lines, cells.sheet().inside_lines(area, true));
        if (index == all_lines || index == xlInsideHorizontal) add(lines, cells.sheet().inside_lines(area, false));
        if (index >= xlEdgeLeft && index <= xlEdgeRight) add(lines, cells.sheet().edge_lines(area, edge_of(index)));
    }
    return lines;
}

void change_lines(const CellRange& cells, std::int32_t index, std::string_view member, const Change& change) {
    cells.require_format_allowed(member);
    const bool inside = index == xlInsideVertical || index == xlInsideHorizontal;
    if (inside && std::ranges::none_of(cells.areas(), [&](const Area& area) { return inside_exists(area, index); })) {
        Line line;
        change(line);
        if (line.style != LineStyle::None) refuse(member, "the range has no lines inside");
        return;
    }
    const Writer writer(cells, change);
    if (index == xlDiagonalDown || index == xlDiagonalUp) {
        writer.diagonal(index);
    } else {
        for (const Area& area : cells.areas()) {
            if (index == all_lines) {
                writer.everything(area);
            } else if (!inside) {
                writer.rim(area, edge_of(index));
            } else if (inside_exists(area, index)) {
                writer.inside(area, index == xlInsideVertical);
            }
        }
    }
    cells.changed();
}

}  // namespace kestrune::host
