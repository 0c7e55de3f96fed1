#include "host/model/ConditionalFormat.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "formula/AreaCut.h"
#include "formula/Shift.h"
#include "host/model/ConditionPriorities.h"
#include "host/model/Sheet.h"

namespace kestrune::host {

formula::Position ConditionalFormat::anchor() const {
    if (areas.empty()) return {};
    formula::Position corner = areas.front().top_left();
    for (const formula::Area& area : areas)
        corner = {std::min(corner.row, area.first_row), std::min(corner.column, area.first_column)};
    return corner;
}

std::vector<ConditionalFormat>& Sheet::conditional_formats() {
    ensure_loaded();
    return conditional_formats_;
}

void close_priority_gap(std::vector<ConditionalFormat>& formats, std::int32_t gone) {
    for (std::int32_t next = gone + 1;; ++next) {
        ConditionalRule* found = nullptr;
        for (ConditionalFormat& format : formats) {
            if (format.extension) continue;
            const auto rule = std::ranges::find(format.rules, next, &ConditionalRule::priority);
            if (rule != format.rules.end()) found = &*rule;
        }
        if (!found) return;
        found->priority = next - 1;
    }
}

void Sheet::delete_conditional_formats(const Area& area) {
    for (ConditionalFormat& format : conditional_formats()) {
        std::vector<Area> left;
        bool cut = false;
        for (const Area& held : format.areas) {
            if (!held.intersection(area)) {
                left.push_back(held);
                continue;
            }
            cut = true;
            for (const Area& piece : area_without(held, area)) left.push_back(piece);
        }
        if (!cut) continue;
        const Position before = format.anchor();
        format.areas = std::move(left);
        conditional_formats_changed = true;
        if (format.areas.empty()) continue;
        // What is left begins elsewhere, and its formulas are written for where it begins.
        const Position after = format.anchor();
        if (after == before) continue;
        for (ConditionalRule& rule : format.rules)
            for (std::string& text : rule.formulas)
                text = formula::shift_formula(text, after.row - before.row, after.column - before.column,
                                              formula::OffSheet::wrap);
    }
    if (!conditional_formats_changed) return;
    std::vector<std::int32_t> gone;
    for (const ConditionalFormat& format : conditional_formats_)
        if (format.areas.empty())
            for (const ConditionalRule& rule : format.rules) gone.push_back(rule.priority);
    std::erase_if(conditional_formats_, [](const ConditionalFormat& format) { return format.areas.empty(); });
    std::ranges::sort(gone, std::greater());
    for (const std::int32_t priority : gone) close_priority_gap(conditional_formats_, priority);
}

}  // namespace kestrune::host
