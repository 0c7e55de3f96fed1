#include <algorithm>
#include <utility>

#include "host/model/Restyling.h"
#include "host/model/Sheet.h"
#include "host/model/Workbook.h"

namespace kestrune::host {

StyleId Sheet::inherited_style(Position at) const {
    if (const auto row = rows_.find(at.row); row != rows_.end() && row->second.has_style) return row->second.style;
    return columns_.style_at(at.column);
}

StyleId Sheet::style_at(Position at) {
    const Cell* cell = find(at);
    return cell ? cell->style : inherited_style(at);
}

const std::vector<BlankCell>& Sheet::styled_rows() {
    ensure_loaded();
    if (!styled_rows_known_) {
        styled_rows_.clear();
        for (const auto& [row, format] : rows_)
            if (format.has_style) styled_rows_.push_back({row, format.style});
        styled_rows_known_ = true;
    }
    return styled_rows_;
}

std::span<const BlankCell> Sheet::styled_rows_in(std::int32_t first, std::int32_t last) {
    const std::vector<BlankCell>& all = styled_rows();
    const auto begin = std::ranges::lower_bound(all, first, {}, &BlankCell::row);
    return {begin, std::ranges::upper_bound(begin, all.end(), last, {}, &BlankCell::row)};
}

bool Sheet::shows_column_format(const Area& area) {
    const auto styled = styled_rows_in(area.first_row, area.last_row);
    const std::int64_t plain_rows = area.rows() - std::ssize(styled);
    if (plain_rows == 0) return false;
    // Columns beyond the content come last and settle it at once.
    for (std::int32_t c = area.last_column; c >= area.first_column; --c) {
        const CellColumn* column = column_if(c);
        if (!column) return true;
        const auto begin = column->from(area.first_row);
        const auto end = column->from(area.last_row + 1);
        if (end - begin < plain_rows) return true;
        const auto in_styled =
            std::ranges::count_if(styled, [&](const BlankCell& row) { return column->find(row.row); });
        if (end - begin - in_styled < plain_rows) return true;
    }
    return false;
}

bool Sheet::has_blank(std::int32_t row, std::int32_t first_column, std::int32_t last_column) const {
    for (std::int32_t c = last_column; c >= first_column; --c) {
        const CellColumn* column = column_if(c);
        if (!column || !column->find(row)) return true;
    }
    return false;
}

std::vector<StyleId> Sheet::styles_in(const Area& area) {
    ensure_loaded();
    std::vector<bool> seen(workbook_.styles.formats.size());
    std::vector<StyleId> styles;
    const auto add = [&](StyleId style) {
        if (seen[style]) return;
        seen[style] = true;
        styles.push_back(style);
    };
    add(style_at(area.top_left()));

    const auto last_column = std::min(area.last_column, static_cast<std::int32_t>(cells_.size()));
    for (std::int32_t c = area.first_column; c <= last_column; ++c)
        for (StyleId last = styles.front(); const Cell& cell : cells_between(c, area.first_row, area.last_row))
            if (cell.style != last) add(last = cell.style);
    for (const BlankCell& row : styled_rows_in(area.first_row, area.last_row))
        if (!seen[row.style] && has_blank(row.row, area.first_column, area.last_column)) add(row.style);
    columns_.visit(area.first_column, area.last_column, [&](const ColumnRun& run) {
        if (!seen[run.style] && shows_column_format({area.first_row, run.first, area.last_row, run.last}))
            add(run.style);
    });
    return styles;
}

void Sheet::restyle(const Area& area, const std::function<StyleId(StyleId)>& map) {
    ensure_loaded();
    constexpr std::int64_t few = 16;
    if (area.cells() > few) {
        const Restyling::Map plain = [&](StyleId style, unsigned) { return map(style); };
        return Restyling(*this, area, plain, false).run();
    }
    std::vector<std::pair<StyleId, StyleId>> known;
    for (const StyleId style : styles_in(area)) known.emplace_back(style, map(style));
    for (std::int32_t row = area.first_row; row <= area.last_row; ++row)
        for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
            const StyleId before = style_at({row, column});
            const StyleId after = std::ranges::find(known, before, &std::pair<StyleId, StyleId>::first)->second;
            if (after == before) continue;
            column_or_new(column).at_or_new(row, after).style = after;
            cells_changed = true;
        }
}

void Sheet::restyle_by_edge(const Area& area, const std::function<StyleId(StyleId, unsigned edges)>& map) {
    ensure_loaded();
    Restyling(*this, area, map, true).run();
}

}  // namespace kestrune::host
