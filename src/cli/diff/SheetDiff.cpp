#include "cli/diff/SheetDiff.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <optional>
#include <set>

#include "cli/diff/ConditionFacts.h"
#include "cli/diff/Rectangles.h"
#include "formula/A1.h"
#include "formula/SheetName.h"
#include "host/objects/ErrorValues.h"
#include "number_format/GeneralText.h"

namespace kestrune::cli {
namespace {

using formula::Area;
using formula::Position;

std::string text_of(const host::CellContent& content) {
    switch (content.kind) {
        case host::CellKind::Blank:
            return "";
        case host::CellKind::Number:
            return number_format::full_number_text(content.number);
        case host::CellKind::Boolean:
            return content.boolean ? "TRUE" : "FALSE";
        case host::CellKind::Error:
            return std::string(host::text_of_error(content.error));
        case host::CellKind::String:
            return content.text;
    }
    return "";
}

std::string areas_text(const std::vector<Area>& areas) {
    std::string out;
    for (const Area& area : areas) {
        if (!out.empty()) out += ',';
        out += formula::area_text(area);
    }
    return out;
}

// The edge that a format property is about, as a bit of Edge; 0 for other properties.
unsigned edge_of(std::size_t property) {
    static constexpr std::pair<std::string_view, host::Edge> edges[] = {{"Borders(xlEdgeLeft)", host::Edge::Left},
                                                                        {"Borders(xlEdgeTop)", host::Edge::Top},
                                                                        {"Borders(xlEdgeRight)", host::Edge::Right},
                                                                        {"Borders(xlEdgeBottom)", host::Edge::Bottom}};
    for (const auto& [name, edge] : edges) {
        if (format_properties[property] == name) return static_cast<unsigned>(edge);
    }
    return 0;
}

std::size_t property_of(host::Edge edge) {
    std::size_t property = 0;
    while (edge_of(property) != static_cast<unsigned>(edge)) ++property;
    return property;
}

constexpr std::string_view no_line = "none";

}  // namespace

SheetDiff::SheetDiff(host::Sheet& before, host::Sheet& after, FormatFactsOf& before_facts, FormatFactsOf& after_facts,
                     bool each_cell, const ChangeSink& tell)
    : before_(before),
      after_(after),
      before_facts_(before_facts),
      after_facts_(after_facts),
      each_cell_(each_cell),
      tell_(tell) {}

void SheetDiff::run() {
    settings();
    if (before_.kind() != host::SheetKind::Worksheet || after_.kind() != host::SheetKind::Worksheet) return;
    columns();
    rows();
    collect_cells();
    tell_cells();
}

std::string SheetDiff::on_sheet(const std::string& reference) const {
    return fmt::format("{}!{}", formula::quoted_sheet(after_.name()), reference);
}

void SheetDiff::tell_if_changed(const std::string& place, std::string_view property, std::string before,
                                std::string after) {
    if (before != after) tell_({place, std::string(property), std::move(before), std::move(after)});
}

void SheetDiff::settings() {
    const std::string place = formula::quoted_sheet(after_.name());
    const auto number = [](double value) { return fmt::format("{:.4g}", value); };
    const auto flag = [](bool value) { return std::string(value ? "True" : "False"); };
    const auto visible = [](host::Visibility v) { return fmt::format("{}", static_cast<int>(v)); };
    tell_if_changed(place, "Visible", visible(before_.visibility), visible(after_.visibility));
    if (before_.kind() != host::SheetKind::Worksheet || after_.kind() != host::SheetKind::Worksheet) return;
    before_.ensure_loaded();
    after_.ensure_loaded();
    tell_if_changed(place, "Window.Zoom", number(before_.view().zoom), number(after_.view().zoom));
    tell_if_changed(place, "Window.DisplayGridlines", flag(before_.view().show_gridlines),
                    flag(after_.view().show_gridlines));
    tell_if_changed(place, "Window.DisplayHeadings", flag(before_.view().show_headings),
                    flag(after_.view().show_headings));
    tell_if_changed(place, "StandardHeight", number(before_.defaults().default_row_height),
                    number(after_.defaults().default_row_height));
    tell_if_changed(place, "StandardWidth", number(before_.defaults().default_column_width),
                    number(after_.defaults().default_column_width));
    tell_if_changed(place, "ProtectContents", flag(before_.protection().on), flag(after_.protection().on));
    auto merges = [](host::Sheet& sheet) {
        std::vector<Area> areas = sheet.merges();
        std::ranges::sort(areas, {}, &Area::top_left);
        return areas_text(areas);
    };
    tell_if_changed(place, "MergeCells", merges(before_), merges(after_));
    tell_if_changed(place, "FormatConditions", condition_facts(before_), condition_facts(after_));
}

// Both sheets' runs cut the columns into stretches that are alike on either side.
std::vector<SheetDiff::Stretch> SheetDiff::stretches() {
    std::set<std::int32_t> starts{1};
    for (host::Sheet* sheet : {&before_, &after_}) {
        for (const host::ColumnRun& run : sheet->columns().runs()) {
            starts.insert(run.first);
            if (run.last < formula::max_columns) starts.insert(run.last + 1);
        }
    }
    std::vector<Stretch> stretches;
    for (auto start = starts.begin(); start != starts.end(); ++start) {
        stretches.push_back({*start, std::next(start) == starts.end() ? formula::max_columns : *std::next(start) - 1});
    }
    return stretches;
}

void SheetDiff::columns() {
    LineChanges changes;
    for (const auto [first, last] : stretches()) {
        const host::ColumnRun a = before_.columns().at(first), b = after_.columns().at(first);
        const auto note = [&](std::string_view property, const std::string& was, const std::string& is) {
            changes.add(first, last, property, was, is);
        };
        note("ColumnWidth", fmt::format("{:.4g}", before_.column_width(first)),
             fmt::format("{:.4g}", after_.column_width(first)));
        note("Hidden", a.hidden ? "True" : "False", b.hidden ? "True" : "False");
        note("OutlineLevel", fmt::format("{}", a.outline_level + 1), fmt::format("{}", b.outline_level + 1));
        if (differences({a.style, b.style}).empty()) continue;
        for (std::int32_t column = first; column <= last; ++column) {
            StylePair pair{a.style, b.style};
            pair.taken_over = lines_taken_over(pair, [&](host::Edge edge) -> std::optional<StylePair> {
                // Above and below lies the column itself.
                const std::int32_t beside = column - (edge == host::Edge::Left) + (edge == host::Edge::Right);
                if (beside < 1 || beside > formula::max_columns) return std::nullopt;
                return StylePair{before_.columns().style_at(beside), after_.columns().style_at(beside)};
            });
            tell_line_format(changes, column, column, pair);
        }
    }
    for (const LineChanges::Line& line : changes.lines()) {
        tell_({on_sheet(formula::area_text({1, line.first, formula::max_rows, line.last})), line.property, line.before,
               line.after});
    }
}

void SheetDiff::rows() {
    std::set<std::int32_t> rows;
    for (host::Sheet* sheet : {&before_, &after_}) {
        for (const auto& [row, format] : sheet->row_formats()) rows.insert(row);
    }
    const host::RowFormat plain;
    const std::vector<Stretch> columns = stretches();
    LineChanges changes;
    for (const std::int32_t row : rows) {
        const host::RowFormat* stored_a = before_.row_format(row);
        const host::RowFormat* stored_b = after_.row_format(row);
        const host::RowFormat& a = stored_a ? *stored_a : plain;
        const host::RowFormat& b = stored_b ? *stored_b : plain;
        const auto note = [&](std::string_view property, const std::string& was, const std::string& is) {
            changes.add(row, row, property, was, is);
        };
        // There may be a million rows that are alike.
        if (const double was = before_.row_height(row), is = after_.row_height(row); was != is)
            note("RowHeight", fmt::format("{:.4g}", was), fmt::format("{:.4g}", is));
        if (a.hidden != b.hidden) note("Hidden", a.hidden ? "True" : "False", b.hidden ? "True" : "False");
        if (a.outline_level != b.outline_level)
            note("OutlineLevel", fmt::format("{}", a.outline_level + 1), fmt::format("{}", b.outline_level + 1));
        if (a.has_style || b.has_style) {
            for (const StylePair& pair : blank_formats_of(row, columns)) tell_line_format(changes, row, row, pair);
        }
    }
    for (const LineChanges::Line& line : changes.lines()) {
        tell_({on_sheet(formula::area_text({line.first, 1, line.last, formula::max_columns})), line.property,
               line.before, line.after});
    }
}

// How the blank cells of a row look, by its own format or by those of the columns.
std::vector<SheetDiff::StylePair> SheetDiff::blank_formats_of(std::int32_t row, const std::vector<Stretch>& columns) {
    const auto shown = [](host::Sheet& sheet, std::int32_t at, std::int32_t column) {
        const host::RowFormat* format = sheet.row_format(at);
        return format && format->has_style ? format->style : sheet.columns().style_at(column);
    };
    std::vector<StylePair> pairs;
    for (const auto [first, last] : columns) {
        std::int32_t column = first;
        // Where either sheet has a cell, cells are compared.
        while (column <= last && (before_.find({row, column}) || after_.find({row, column}))) ++column;
        if (column > last) continue;
        StylePair pair{shown(before_, row, first), shown(after_, row, first)};
        pair.taken_over = lines_taken_over(pair, [&, start = first](host::Edge edge) -> std::optional<StylePair> {
            const std::int32_t beside = row - (edge == host::Edge::Top) + (edge == host::Edge::Bottom);
            if (beside < 1 || beside > formula::max_rows) return std::nullopt;
            return StylePair{shown(before_, beside, start), shown(after_, beside, start)};
        });
        if (std::ranges::find(pairs, pair) == pairs.end()) pairs.push_back(pair);
    }
    return pairs;
}

void SheetDiff::tell_line_format(LineChanges& changes, std::int32_t first, std::int32_t last, StylePair pair) {
    for (const std::size_t i : differences(pair)) {
        changes.add(first, last, format_properties[i], before_facts_[pair.before][i], after_facts_[pair.after][i]);
    }
}

const std::vector<std::size_t>& SheetDiff::differences(StylePair pair) {
    const auto [entry, fresh] = known_.try_emplace(pair);
    if (fresh) {
        const FormatFacts& a = before_facts_[pair.before];
        const FormatFacts& b = after_facts_[pair.after];
        for (std::size_t i = 0; i < a.size(); ++i) {
            if (a[i] != b[i] && !(pair.taken_over & edge_of(i))) entry->second.push_back(i);
        }
    }
    return entry->second;
}

void SheetDiff::tell_format(const std::string& place, StylePair pair) {
    for (const std::size_t i : differences(pair)) {
        tell_({place, std::string(format_properties[i]), before_facts_[pair.before][i], after_facts_[pair.after][i]});
    }
}

void SheetDiff::collect_cells() {
    const auto& left = before_.cell_columns();
    const auto& right = after_.cell_columns();
    for (std::size_t c = 0; c < std::max(left.size(), right.size()); ++c) {
        static const std::vector<host::Cell> none;
        const auto& a = c < left.size() && left[c] ? left[c]->cells : none;
        const auto& b = c < right.size() && right[c] ? right[c]->cells : none;
        for (std::size_t i = 0, j = 0; i < a.size() || j < b.size();) {
            const std::int32_t row = std::min(i < a.size() ? a[i].row : formula::max_rows + 1,
                                              j < b.size() ? b[j].row : formula::max_rows + 1);
            compare_cell({row, static_cast<std::int32_t>(c) + 1});
            if (i < a.size() && a[i].row == row) ++i;
            if (j < b.size() && b[j].row == row) ++j;
        }
    }
}

// The line between two cells is one, whichever of them it is stored with: where it moved to the neighbour nothing
// changed, and where it is the neighbour's line that changed, the neighbour tells of it.
template <class Beside>
unsigned SheetDiff::lines_taken_over(StylePair pair, Beside&& beside) {
    unsigned edges = 0;
    const std::vector<std::size_t> differing = differences({pair.before, pair.after, 0});
    for (const std::size_t i : differing) {
        const unsigned edge = edge_of(i);
        if (edge == 0) continue;
        const std::optional<StylePair> neighbour = beside(static_cast<host::Edge>(edge));
        if (!neighbour) continue;
        const std::size_t facing = property_of(host::facing(static_cast<host::Edge>(edge)));
        const std::string& theirs_before = before_facts_[neighbour->before][facing];
        const std::string& theirs_after = after_facts_[neighbour->after][facing];
        const std::string& own_before = before_facts_[pair.before][i];
        const std::string& own_after = after_facts_[pair.after][i];
        const std::string& shown_before = own_before == no_line ? theirs_before : own_before;
        const std::string& shown_after = own_after == no_line ? theirs_after : own_after;
        if (shown_before == shown_after || (own_after == no_line && theirs_after != no_line)) edges |= edge;
    }
    return edges;
}

unsigned SheetDiff::lines_taken_over(Position at, StylePair pair) {
    return lines_taken_over(pair, [&](host::Edge edge) -> std::optional<StylePair> {
        Position beside = at;
        if (edge == host::Edge::Left) --beside.column;
        if (edge == host::Edge::Right) ++beside.column;
        if (edge == host::Edge::Top) --beside.row;
        if (edge == host::Edge::Bottom) ++beside.row;
        if (!beside.on_sheet()) return std::nullopt;
        return StylePair{before_.style_at(beside), after_.style_at(beside)};
    });
}

void SheetDiff::compare_cell(Position at) {
    bool differs = false;
    StylePair pair{before_.style_at(at), after_.style_at(at)};
    pair.taken_over = lines_taken_over(at, pair);
    if (!differences(pair).empty()) {
        restyled_[pair].push_back(at);
        differs = true;
    }
    const auto note = [&](const char* property, std::string was, std::string is) {
        if (was == is) return;
        rewritten_.push_back({at, {on_sheet(formula::cell_text(at)), property, std::move(was), std::move(is)}});
        differs = true;
    };
    const auto formula_of = [&](host::Sheet& sheet) {
        const std::string text = sheet.formula_at(at);
        return text.empty() ? text : "=" + text;
    };
    note("Formula", formula_of(before_), formula_of(after_));
    note("Value", text_of(before_.content_at(at)), text_of(after_.content_at(at)));
    if (differs) ++cells_;
}

void SheetDiff::tell_cells() {
    std::ranges::stable_sort(rewritten_, {}, [](const auto& entry) { return entry.first; });
    for (const auto& [at, change] : rewritten_) tell_(change);
    if (each_cell_) {
        std::vector<std::pair<Position, StylePair>> cells;
        for (const auto& [pair, places] : restyled_) {
            for (const Position at : places) cells.emplace_back(at, pair);
        }
        std::ranges::sort(cells, {}, [](const auto& entry) { return entry.first; });
        for (const auto& [at, pair] : cells) tell_format(on_sheet(formula::cell_text(at)), pair);
        return;
    }
    // Cells with different formats before may well have the same change after all.
    std::map<Change, std::vector<Position>, decltype([](const Change& a, const Change& b) {
                 return std::tie(a.property, a.before, a.after) < std::tie(b.property, b.before, b.after);
             })>
        by_change;
    for (const auto& [pair, places] : restyled_) {
        for (const std::size_t i : differences(pair)) {
            auto& cells = by_change[{"", std::string(format_properties[i]), before_facts_[pair.before][i],
                                     after_facts_[pair.after][i]}];
            cells.insert(cells.end(), places.begin(), places.end());
        }
    }
    std::vector<std::pair<Area, Change>> lines;
    for (const auto& [change, cells] : by_change) {
        for (const Area& area : rectangles(cells)) {
            lines.emplace_back(area, change);
            lines.back().second.place = on_sheet(formula::area_text(area));
        }
    }
    std::ranges::stable_sort(lines, {}, [](const auto& line) { return line.first.top_left(); });
    for (const auto& [area, change] : lines) tell_(change);
}

}  // namespace kestrune::cli
