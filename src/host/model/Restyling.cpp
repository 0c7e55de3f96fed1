#include "host/model/Restyling.h"

#include <algorithm>
#include <map>
#include <utility>

#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

// Whether another row or column format is worth it: it must spare far more cells than it takes elsewhere, and a
// handful of cells is no reason to format a whole row.
bool spares_enough(std::int64_t differing_before, std::int64_t differing_after) {
    return differing_after * 8 + 64 < differing_before;
}

}  // namespace

Restyling::Restyling(Sheet& sheet, const Area& area, const Map& map, bool by_edge)
    : sheet_(sheet), area_(area), map_(map), by_edge_(by_edge) {
    for (const Band& band : bands(area.first_row, area.last_row, formula::max_rows, Edge::Top, Edge::Bottom)) {
        const auto styled = std::ssize(sheet.styled_rows_in(band.first, band.last));
        rows_.push_back({band, band.size() - styled, std::nullopt});
    }
    for (const Band& band : bands(area.first_column, area.last_column, formula::max_columns, Edge::Left, Edge::Right))
        sheet.columns_.visit(band.first, band.last, [&](const ColumnRun& run) {
            Columns columns{band, run.style, run.style};
            columns.first = run.first;
            columns.last = run.last;
            columns_.push_back(columns);
        });
    for (const BlankCell& row : sheet.styled_rows_in(area.first_row, area.last_row))
        styled_rows_.push_back(
            {row.row, row.style, row.style, sheet.has_blank(row.row, area.first_column, area.last_column)});
}

void Restyling::run() {
    // Everything that can fail comes before the first change.
    const bool stored_differ = map_stored<false>();
    plan_columns();
    plan_plain_rows();
    plan_styled_rows();

    if (stored_differ) sheet_.cells_changed = map_stored<true>();
    fill_gaps();
    apply_to_columns();
    apply_to_rows();
}

std::vector<Restyling::Band> Restyling::bands(std::int32_t first, std::int32_t last, std::int32_t end, Edge first_edge,
                                              Edge last_edge) const {
    const auto first_bit = by_edge_ ? static_cast<unsigned>(first_edge) : 0U;
    const auto last_bit = by_edge_ ? static_cast<unsigned>(last_edge) : 0U;
    std::vector<Band> found;
    const auto add = [&](std::int32_t from, std::int32_t to, bool inside, unsigned edges) {
        if (from <= to) found.push_back({from, to, inside, edges});
    };
    add(1, first - 1, false, 0);
    if (!by_edge_ || first == last) {
        add(first, last, true, first_bit | last_bit);
    } else {
        add(first, first, true, first_bit);
        add(first + 1, last - 1, true, 0);
        add(last, last, true, last_bit);
    }
    add(last + 1, end, false, 0);
    return found;
}

StyleId Restyling::known_successor(StyleId style, unsigned edges) const {
    const std::vector<StyleId>& known = successors_[edges];
    return style < known.size() ? known[style] : nothing;
}

StyleId Restyling::successor(StyleId style, unsigned edges) {
    std::vector<StyleId>& known = successors_[edges];
    if (known.size() <= style)
        known.resize(std::max<std::size_t>(sheet_.workbook_.styles.formats.size(), style + 1U), nothing);
    if (known[style] == nothing) {
        const StyleId next = map_(style, edges);
        known[style] = next;
    }
    return known[style];
}

template <bool apply>
bool Restyling::map_stored() {
    bool differ = false;
    for (const Columns& columns : columns_) {
        if (!columns.inside) continue;
        for (std::int32_t c = columns.first; c <= columns.last; ++c) {
            CellColumn* column = sheet_.column_if(c);
            if (!column) continue;
            for (const Rows& rows : rows_) {
                if (!rows.inside) continue;
                const unsigned edges = columns.edges | rows.edges;
                const auto end = column->from(rows.last + 1);
                // Cells down a column are mostly alike: one answer holds until the format changes.
                StyleId before = nothing;
                StyleId after = nothing;
                for (auto cell = column->from(rows.first); cell < end; ++cell) {
                    if (cell->style != before) {
                        before = cell->style;
                        after = successor(before, edges);
                        differ = differ || after != before;
                    }
                    if (apply) cell->style = after;
                }
            }
        }
    }
    return differ;
}

StyleId Restyling::wanted_of_column(const Columns& columns, const Rows& rows) {
    if (!columns.inside || !rows.inside) return columns.before;
    // A format that nothing shows has no successor: the map would make formats for nobody.
    if (!sheet_.shows_column_format({rows.first, columns.first, rows.last, columns.last})) return nothing;
    return successor(columns.before, columns.edges | rows.edges);
}

StyleId Restyling::wanted_of_row(const StyledRow& row, const Columns& columns, const Rows& rows) const {
    return columns.inside ? known_successor(row.before, columns.edges | rows.edges) : row.before;
}

void Restyling::plan_columns() {
    for (Columns& columns : columns_) {
        std::vector<StyleId> wanted;
        for (const Rows& rows : rows_) wanted.push_back(wanted_of_column(columns, rows));
        wanted_.push_back(wanted);
        if (!columns.inside) continue;

        const auto differing = [&](StyleId shown) {
            std::int64_t count = 0;
            for (std::size_t r = 0; r < rows_.size(); ++r)
                if (wanted[r] != nothing && wanted[r] != shown) count += rows_[r].plain_rows;
            return count;
        };
        StyleId candidate = columns.before;
        std::int64_t most = 0;
        for (std::size_t r = 0; r < rows_.size(); ++r)
            if (rows_[r].inside && wanted[r] != nothing && rows_[r].plain_rows > most) {
                most = rows_[r].plain_rows;
                candidate = wanted[r];
            }
        if (spares_enough(differing(columns.before), differing(candidate))) columns.after = candidate;
    }
}

std::optional<StyleId> Restyling::better_row_style(const std::vector<StyleId>& wanted,
                                                   const std::vector<StyleId>& shown) const {
    std::map<StyleId, std::int64_t> widths;
    std::int64_t differing = 0;
    std::int64_t all = 0;
    for (std::size_t c = 0; c < columns_.size(); ++c) {
        if (wanted[c] == nothing) continue;
        const std::int64_t width = columns_[c].size();
        all += width;
        widths[wanted[c]] += width;
        if (wanted[c] != shown[c]) differing += width;
    }
    if (differing == 0) return std::nullopt;
    const auto widest = std::ranges::max_element(widths, {}, [](const auto& entry) { return entry.second; });
    if (!spares_enough(differing, all - widest->second)) return std::nullopt;
    return widest->first;
}

void Restyling::plan_plain_rows() {
    std::vector<StyleId> shown;
    for (const Columns& columns : columns_) shown.push_back(columns.after);
    for (std::size_t r = 0; r < rows_.size(); ++r) {
        if (rows_[r].plain_rows == 0) continue;
        std::vector<StyleId> wanted;
        for (const auto& of_column : wanted_) wanted.push_back(of_column[r]);
        rows_[r].after = better_row_style(wanted, shown);
    }
}

void Restyling::plan_styled_rows() {
    auto rows = rows_.begin();
    std::map<StyleId, StyleId> decided;  // within one band of rows
    for (StyledRow& row : styled_rows_) {
        while (rows->last < row.row) {
            ++rows;
            decided.clear();
        }
        if (!row.open) continue;
        for (const Columns& columns : columns_)
            if (columns.inside && wanted_of_row(row, columns, *rows) == nothing &&
                sheet_.has_blank(row.row, columns.first, columns.last))
                successor(row.before, columns.edges | rows->edges);
        const auto [decision, is_new] = decided.try_emplace(row.before, row.before);
        if (is_new) {
            std::vector<StyleId> wanted;
            for (const Columns& columns : columns_) wanted.push_back(wanted_of_row(row, columns, *rows));
            const std::vector<StyleId> shown(columns_.size(), row.before);
            decision->second = better_row_style(wanted, shown).value_or(row.before);
        }
        row.after = decision->second;
    }
}

void Restyling::fill_gaps() {
    std::vector<BlankCell> blanks;
    for (std::size_t c = 0; c < columns_.size(); ++c) {
        const Columns& columns = columns_[c];
        blanks.clear();
        auto planned = styled_rows_.cbegin();
        for (std::size_t r = 0; r < rows_.size(); ++r) {
            const Rows& rows = rows_[r];
            const StyleId wanted = wanted_[c][r];
            const bool plain_differ = wanted != nothing && wanted != rows.after.value_or(columns.after);
            std::int32_t next = rows.first;
            const auto fill_to = [&](std::int32_t end) {
                if (plain_differ)
                    for (; next < end; ++next) blanks.push_back({next, wanted});
                next = end + 1;
            };
            if (rows.inside) {
                for (; planned != styled_rows_.cend() && planned->row <= rows.last; ++planned) {
                    fill_to(planned->row);
                    const StyleId own = wanted_of_row(*planned, columns, rows);
                    if (own != nothing && own != planned->after) blanks.push_back({planned->row, own});
                }
            } else if (plain_differ) {
                for (const BlankCell& styled : sheet_.styled_rows_in(rows.first, rows.last)) fill_to(styled.row);
            }
            fill_to(rows.last + 1);
        }
        if (blanks.empty()) continue;
        for (std::int32_t column = columns.first; column <= columns.last; ++column)
            if (sheet_.column_or_new(column).add_missing(blanks)) sheet_.cells_changed = true;
    }
}

void Restyling::apply_to_columns() {
    for (const Columns& columns : columns_)
        if (columns.after != columns.before)
            sheet_.columns_.change(columns.first, columns.last, [&](ColumnRun& run) { run.style = columns.after; });
}

void Restyling::apply_to_rows() {
    std::vector<BlankCell>& index = sheet_.styled_rows_;
    for (const StyledRow& row : styled_rows_) {
        if (row.after == row.before) continue;
        RowFormat& format = sheet_.rows_.find(row.row)->second;
        format.style = row.after;
        format.changed = true;
        std::ranges::lower_bound(index, row.row, {}, &BlankCell::row)->style = row.after;
        sheet_.rows_changed = true;
    }
    std::vector<BlankCell> added;
    for (const Rows& rows : rows_) {
        if (!rows.after) continue;
        auto place = sheet_.rows_.lower_bound(rows.first);
        for (std::int32_t row = rows.first; row <= rows.last; ++row) {
            if (place == sheet_.rows_.end() || place->first != row)
                place = sheet_.rows_.emplace_hint(place, row, sheet_.new_row_format());
            RowFormat& format = place++->second;
            if (format.has_style) continue;
            format.has_style = true;
            format.style = *rows.after;
            format.changed = true;
            added.push_back({row, *rows.after});
        }
    }
    if (added.empty()) return;
    sheet_.rows_changed = true;
    const auto middle = std::ssize(index);
    index.insert(index.end(), added.begin(), added.end());
    std::ranges::inplace_merge(index, index.begin() + middle, {}, &BlankCell::row);
}

}  // namespace kestrune::host
