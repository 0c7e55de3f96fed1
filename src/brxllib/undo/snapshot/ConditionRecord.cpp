#include "brxllib/undo/snapshot/ConditionRecord.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>

#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Rectangles.h"
#include "formula/A1.h"
#include "formula/AreaCut.h"

namespace kestrune::brxllib::undo {
namespace {

using excel::FormatCondition;
using formula::Area;
using Areas = std::vector<Area>;

// Areas as they are outside some cells, and as others are in these.
Areas replaced(const Areas& areas, const Areas& others, const Areas& cells) {
    Areas all = formula::areas_without(areas, cells);
    for (const Area& other : others) {
        for (const Area& cell : cells) {
            if (const auto common = other.intersection(cell)) all.push_back(*common);
        }
    }
    return all;
}

bool touch(const Areas& one, const Areas& other) {
    return std::ranges::any_of(one, [&](const Area& area) {
        return std::ranges::any_of(other, [&](const Area& own) { return area.intersection(own).has_value(); });
    });
}

// The active cell when it lies on a sheet.
excel::Range active_cell_of(const excel::Application& application, const excel::Worksheet& sheet) {
    const excel::Range cell = application.ActiveCell();
    if (!cell) return {};
    const excel::Worksheet active = cell.Worksheet();
    const bool here = active.Name() == sheet.Name() && active.Parent().Name() == sheet.Parent().Name();
    return here ? cell : excel::Range();
}

std::string address_text(const Areas& areas) { return address_of(areas).text; }

}  // namespace

ConditionRecord ConditionRecord::take(const excel::Range& range, Budget& budget, const automation::Trace& trace) {
    ConditionRecord record;
    const excel::FormatConditions conditions = range.FormatConditions();
    const std::int32_t count = conditions.Count();
    if (count == 0) return record;
    for (std::int32_t i = 1; i <= count; ++i) {
        record.rules_.push_back(read_condition(conditions.Item(i), trace));
        budget.spend(record.rules_.back().bytes());
    }
    std::ranges::stable_sort(record.rules_, {}, &ConditionState::priority);
    return record;
}

void ConditionRecord::restore(const excel::Range& range, Restoring& restoring) const {
    const Areas own = areas_of(range);
    Areas places = own;
    for (const ConditionState& rule : rules_)
        places.insert(places.end(), rule.applies_to.begin(), rule.applies_to.end());
    const excel::Range everywhere = range_of(restoring.application(), restoring.sheet(), places);

    struct Present {
        FormatCondition condition;
        ConditionState state;
        bool taken = false;
    };
    std::vector<Present> present;
    const excel::FormatConditions conditions = everywhere.FormatConditions();
    const std::int32_t count = conditions.Count();
    if (count == 0 && rules_.empty()) return;
    for (std::int32_t i = 1; i <= count; ++i) {
        FormatCondition condition = conditions.Item(i);
        ConditionState state = read_condition(condition, restoring.trace());
        present.push_back({std::move(condition), std::move(state)});
    }

    // Each rule finds itself again: where nothing became of it, where it lost cells, and where it holds for others,
    // too, which it keeps outside these cells.
    enum class Found : std::uint8_t { InSameCells, InSomeOfThem, InOthersToo };
    std::vector<std::optional<FormatCondition>> found(rules_.size());
    for (const Found where : {Found::InSameCells, Found::InSomeOfThem, Found::InOthersToo}) {
        for (std::size_t i = 0; i < rules_.size(); ++i) {
            if (found[i]) continue;
            const Areas& wanted = rules_[i].applies_to;
            const auto same = std::ranges::find_if(present, [&](const Present& one) {
                const Areas& cells = one.state.applies_to;
                return !one.taken && rules_[i].same_rule(one.state) &&
                       (where == Found::InSameCells    ? formula::same_cells(wanted, cells)
                        : where == Found::InSomeOfThem ? formula::areas_without(cells, wanted).empty()
                                                       : touch(cells, wanted));
            });
            if (same == present.end()) continue;
            same->taken = true;
            found[i] = same->condition;
            if (where == Found::InSameCells) continue;
            const Areas cells = where == Found::InSomeOfThem ? wanted : replaced(same->state.applies_to, wanted, own);
            if (formula::same_cells(same->state.applies_to, cells)) continue;
            restoring(address_text(wanted), "FormatConditions", [&] {
                found[i]->ModifyAppliesToRange(range_of(restoring.application(), restoring.sheet(), cells));
            });
        }
    }
    // What came since goes, from these cells at least.
    for (auto other = present.rbegin(); other != present.rend(); ++other) {
        if (other->taken || !touch(other->state.applies_to, own)) continue;
        restoring(address_text(other->state.applies_to), "FormatConditions", [&] {
            const Areas left = formula::areas_without(other->state.applies_to, own);
            const bool changed_rule = std::ranges::any_of(rules_, [&](const ConditionState& rule) {
                return formula::areas_without(other->state.applies_to, rule.applies_to).empty();
            });
            if (left.empty() || changed_rule) return other->condition.Delete();
            other->condition.ModifyAppliesToRange(range_of(restoring.application(), restoring.sheet(), left));
        });
    }
    for (std::size_t i = 0; i < rules_.size(); ++i) {
        const ConditionState& rule = rules_[i];
        if (!found[i]) {
            restoring(address_text(rule.applies_to), "FormatConditions", [&] {
                found[i] = add_condition(rule, range_of(restoring.application(), restoring.sheet(), rule.applies_to),
                                         active_cell_of(restoring.application(), restoring.sheet()), restoring.trace());
            });
        }
    }
    for (std::size_t i = 0; i < rules_.size(); ++i) {
        if (!found[i]) continue;
        restoring(address_text(rules_[i].applies_to), "FormatConditions", [&] {
            if (found[i]->Priority() != rules_[i].priority) found[i]->Priority(rules_[i].priority);
        });
    }
}

void ConditionRecord::tell_irreplaceable(const Areas& areas, std::vector<std::string>& lines) const {
    for (const ConditionState& rule : rules_) {
        if (rule.replaceable() || !formula::areas_without(rule.applies_to, areas).empty()) continue;
        lines.push_back("a conditional format of " + address_text(rule.applies_to));
    }
}

std::size_t ConditionRecord::bytes() const {
    std::size_t sum = sizeof(ConditionRecord);
    for (const ConditionState& rule : rules_) sum += rule.bytes();
    return sum;
}

}  // namespace kestrune::brxllib::undo
