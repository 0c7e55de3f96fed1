#include "formula/Edit.h"

#include "formula/A1.h"
#include "formula/Characters.h"
#include "formula/Rewrite.h"
#include "formula/SheetName.h"

namespace kestrune::formula {
namespace {

// First and last along the edited axis; false when nothing is left.
bool adjust_span(std::int32_t& first, std::int32_t& last, const Edit& edit, std::int32_t limit) {
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

}  // namespace

std::optional<Area> adjust_area(const Area& area, const Edit& edit) {
    Area result = area;
    const bool left = edit.of_rows() ? adjust_span(result.first_row, result.last_row, edit, max_rows)
                                     : adjust_span(result.first_column, result.last_column, edit, max_columns);
    if (!left) return std::nullopt;
    return result;
}

std::string adjust_for_edit(std::string_view formula, std::string_view own_sheet, const Edit& edit) {
    const bool own = equal_ignoring_case(own_sheet, edit.sheet);
    return rewrite_references(formula, Notation::a1, [&](const Token& token, std::string& out) {
        const std::string_view prefix = token.sheet(formula);
        Reference reference = token.reference;
        const bool meant = prefix.empty() ? own : names_sheet(prefix, edit.sheet);
        const bool crosses = edit.of_rows() ? reference.has_rows() : reference.has_columns();
        if (meant && crosses) {
            sort_corners(reference);
            const auto area = adjust_area(area_of(reference), edit);
            if (!area) {
                out += "#REF!";
                return;
            }
            if (edit.of_rows()) {
                reference.first_row.value = area->first_row;
                reference.last_row.value = area->last_row;
            } else {
                reference.first_column.value = area->first_column;
                reference.last_column.value = area->last_column;
            }
            if (reference != token.reference) {
                append_a1(out, reference);
                return;
            }
        }
        out.append(formula, token.body(), token.end() - token.body());
    });
}

}  // namespace kestrune::formula
