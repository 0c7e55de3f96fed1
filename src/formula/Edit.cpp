#include "formula/Edit.h"

#include <unordered_map>

#include "formula/A1.h"
#include "formula/Characters.h"
#include "formula/Rewrite.h"
#include "formula/SheetName.h"
#include "formula/Shift.h"

namespace kestrune::formula {
namespace {

std::string_view file_name(std::string_view path) { return path.substr(path.find_last_of("\\/") + 1); }

bool crosses(const Reference& reference, const Edit& edit) {
    return edit.of_rows() ? reference.has_rows() : reference.has_columns();
}

Coordinate& first_of(Reference& reference, const Edit& edit) {
    return edit.of_rows() ? reference.first_row : reference.first_column;
}

Coordinate& last_of(Reference& reference, const Edit& edit) {
    return edit.of_rows() ? reference.last_row : reference.last_column;
}

// Only what is written with $ moves. False when that is gone.
bool adjust_absolute(Reference& reference, const Edit& edit) {
    Coordinate& first = first_of(reference, edit);
    Coordinate& last = last_of(reference, edit);
    if (first.absolute && last.absolute) return adjust_span(first.value, last.value, edit);
    for (Coordinate* one : {&first, &last}) {
        if (!one->absolute) continue;
        std::int32_t same = one->value;
        if (!adjust_span(one->value, same, edit)) one->value = edit.first;
    }
    return true;
}

// What the rule of one cell of its areas becomes, written for the new corner.
std::string adjusted_at(std::string_view formula, std::string_view own_sheet, const Edit& edit, Position corner,
                        Position new_corner, Position member, Position new_member) {
    const std::string there =
        shift_formula(formula, member.row - corner.row, member.column - corner.column, OffSheet::wrap);
    return shift_formula(adjust_for_edit(there, own_sheet, edit), new_corner.row - new_member.row,
                         new_corner.column - new_member.column, OffSheet::wrap);
}

}  // namespace

bool adjust_span(std::int32_t& first, std::int32_t& last, const Edit& edit) {
    const std::int64_t limit = edit.of_rows() ? max_rows : max_columns;
    if (first == 1 && last == limit) return true;
    const std::int64_t start = edit.first;
    const std::int64_t count = edit.count;
    std::int64_t a = first;
    std::int64_t b = last;
    if (edit.inserts()) {
        if (a >= start) a += count;
        if (b >= start) b += count;
        if (a > limit) return false;
        b = std::min<std::int64_t>(b, limit);
    } else {
        const std::int64_t stop = start + count;  // the first one that stays
        if (a >= start && b < stop) return false;
        if (a >= start) a = a < stop ? start : a - count;
        if (b >= start) b = b < stop ? start - 1 : b - count;
    }
    first = static_cast<std::int32_t>(a);
    last = static_cast<std::int32_t>(b);
    return true;
}

std::optional<Area> adjust_area(const Area& area, const Edit& edit) {
    Area result = area;
    const bool left = edit.of_rows() ? adjust_span(result.first_row, result.last_row, edit)
                                     : adjust_span(result.first_column, result.last_column, edit);
    if (!left) return std::nullopt;
    return result;
}

std::optional<Position> adjust_position(Position at, const Edit& edit) {
    const auto area = adjust_area(Area::cell(at), edit);
    if (!area) return std::nullopt;
    return area->top_left();
}

std::vector<Area> adjust_areas(const std::vector<Area>& areas, const Edit& edit) {
    std::vector<Area> left;
    left.reserve(areas.size());
    for (const Area& area : areas) {
        if (const auto adjusted = adjust_area(area, edit)) left.push_back(*adjusted);
    }
    return left;
}

bool same_file(std::string_view one, std::string_view other) {
    const std::string_view one_name = file_name(one);
    const std::string_view other_name = file_name(other);
    if (!equal_ignoring_case(one_name, other_name)) return false;
    if (one_name.size() == one.size() || other_name.size() == other.size()) return true;
    const auto same = [](char a, char b) { return to_upper(a == '\\' ? '/' : a) == to_upper(b == '\\' ? '/' : b); };
    return std::ranges::equal(one, other, same);
}

bool means_edited_sheet(std::string_view prefix, std::string_view own_sheet, const Edit& edit) {
    if (edit.books.empty()) {
        return prefix.empty() ? equal_ignoring_case(own_sheet, edit.sheet) : names_sheet(prefix, edit.sheet);
    }
    if (prefix.find('[') == std::string_view::npos) return false;
    const SheetPrefix parsed = parse_sheet_prefix(prefix);
    if (parsed.first_sheet != parsed.last_sheet || !equal_ignoring_case(parsed.first_sheet, edit.sheet)) return false;
    for (const std::string& book : edit.books) {
        if (same_file(parsed.book, book)) return true;
    }
    return false;
}

std::string adjust_for_edit(std::string_view formula, std::string_view own_sheet, const Edit& edit) {
    return rewrite_references(formula, Notation::a1, [&](const Token& token, std::string& out) {
        Reference reference = token.reference;
        if (crosses(reference, edit) && means_edited_sheet(token.sheet(formula), own_sheet, edit)) {
            sort_corners(reference);
            if (!adjust_span(first_of(reference, edit).value, last_of(reference, edit).value, edit)) {
                out += "#REF!";
                return;
            }
            if (reference != token.reference) {
                append_a1(out, reference);
                return;
            }
        }
        out.append(formula, token.body(), token.end() - token.body());
    });
}

std::string adjust_name_for_edit(std::string_view refers_to, const Edit& edit) {
    return rewrite_references(refers_to, Notation::a1, [&](const Token& token, std::string& out) {
        Reference reference = token.reference;
        if (crosses(reference, edit) && means_edited_sheet(token.sheet(refers_to), {}, edit)) {
            if (!adjust_absolute(reference, edit)) {
                out += "#REF!";
                return;
            }
            if (reference != token.reference) {
                append_a1(out, reference);
                return;
            }
        }
        out.append(refers_to, token.body(), token.end() - token.body());
    });
}

Position corner_of(const std::vector<Area>& areas) {
    if (areas.empty()) return {};
    Position corner = areas.front().top_left();
    for (const Area& area : areas) {
        corner.row = std::min(corner.row, area.first_row);
        corner.column = std::min(corner.column, area.first_column);
    }
    return corner;
}

std::string adjust_rule_for_edit(std::string_view formula, std::string_view own_sheet, const std::vector<Area>& areas,
                                 const Edit& edit) {
    const bool own = means_edited_sheet({}, own_sheet, edit);
    const std::vector<Area> left = own ? adjust_areas(areas, edit) : areas;
    if (left.empty()) return std::string(formula);
    const Position corner = corner_of(areas);
    const Position new_corner = corner_of(left);
    // One of the first cells, one of the last and one in between: the edit runs between a cell and what it refers to
    // for a few neighbours only, however many cells there are.
    std::vector<std::string> votes;
    const auto ask = [&](Position member) {
        const auto moved = own ? adjust_position(member, edit) : member;
        if (moved) votes.push_back(adjusted_at(formula, own_sheet, edit, corner, new_corner, member, *moved));
    };
    const auto middle = [](std::int32_t first, std::int32_t last) { return first + (last - first) / 2; };
    for (const Area& area : areas) {
        ask(area.top_left());
        ask({middle(area.first_row, area.last_row), middle(area.first_column, area.last_column)});
        ask({area.last_row, area.last_column});
    }
    if (votes.empty()) {  // what is asked is gone, a strip between remains
        for (const Area& area : areas) {
            for (const std::int32_t line : {edit.first - 1, edit.first + edit.count}) {
                const Position member =
                    edit.of_rows() ? Position{line, area.first_column} : Position{area.first_row, line};
                if (area.contains(member)) ask(member);
            }
        }
    }
    // Sheets that were copied about for years have rules with thousands of areas.
    std::unordered_map<std::string_view, std::size_t> counts;
    for (const std::string& vote : votes) ++counts[vote];
    const std::string* best = nullptr;
    std::size_t most = 0;
    for (const std::string& vote : votes) {
        const std::size_t same = counts[vote];
        if (same <= most) continue;
        most = same;
        best = &vote;
    }
    return best ? *best : std::string(formula);
}

}  // namespace kestrune::formula
