#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "formula/SharedEdit.h"
#include "host/model/DataTableFormula.h"
#include "host/model/Sheet.h"

namespace kestrune::host {
namespace {

// Formulas may lose what they refer to, and with it the results that undo shows again.
bool deletes(const formula::Edit& edit) {
    return edit.kind == formula::Edit::Kind::delete_rows || edit.kind == formula::Edit::Kind::delete_columns;
}

// What an edit makes of a formula that cells share: one formula again, or one for each form that it falls into.
class SharedGroup {
  public:
    struct Form {
        Position before;  // of the first cell that has it
        Position after;
        std::uint32_t formula = 0;  // as Cell::formula
    };

    SharedGroup(const Formula& formula, std::string_view sheet, const formula::Edit& edit)
        : text_(formula.text), edit_(text_, formula.anchor, sheet, edit) {}
    SharedGroup(const SharedGroup&) = delete;
    SharedGroup& operator=(const SharedGroup&) = delete;

    Form& form_of(Position before, Position after) {
        const std::vector<std::int64_t>& key = edit_.form(before, after);
        // Neighbours are mostly alike.
        if (last_ != forms_.end() && last_->first == key) return last_->second;
        last_ = forms_.try_emplace(key, Form{before, after, 0}).first;
        return last_->second;
    }
    [[nodiscard]] std::map<std::vector<std::int64_t>, Form>& forms() { return forms_; }
    [[nodiscard]] std::string text(Position before) const { return edit_.text(before); }

    bool parted = false;

  private:
    std::string text_;  // as it was; the formula's own changes meanwhile
    formula::SharedEdit edit_;
    std::map<std::vector<std::int64_t>, Form> forms_;
    std::map<std::vector<std::int64_t>, Form>::iterator last_ = forms_.end();
};

}  // namespace

bool Sheet::follow(const formula::Edit& edit) {
    ensure_loaded();
    const bool own = edit.books.empty() && formula::means_edited_sheet({}, name_, edit);
    const bool cells = follow_in_cells(edit, own);
    const bool rules = follow_in_rules(edit, own);
    return cells || rules;
}

bool Sheet::follow_in_cells(const formula::Edit& edit, bool own) {
    const auto after = [&](Position at) { return own ? formula::adjust_position(at, edit) : at; };
    bool differs = false;
    const auto mark = [&](Cell& cell, std::uint8_t flags) {
        cell.flags |= flags;
        cells_changed = differs = true;
    };
    std::unordered_map<std::uint32_t, SharedGroup> groups;
    const auto visit = [&](auto&& each) {
        for (std::int32_t c = 1; c <= std::ssize(cells_); ++c) {
            CellColumn* column = column_if(c);
            if (!column) continue;
            for (Cell& cell : column->cells)
                if (cell.formula != 0) each(cell, Position{cell.row, c});
        }
    };
    visit([&](Cell& cell, Position at) {
        Formula& formula = formulas_[cell.formula - 1];
        const auto place = after(at);
        if (!place) return remember_result(cell, at);
        if (formula.kind == Formula::Kind::Shared) {
            auto group = groups.find(cell.formula);
            if (group == groups.end()) group = groups.try_emplace(cell.formula, formula, name_, edit).first;
            group->second.form_of(at, *place);
            return;
        }
        if (formula.anchor != at) return;
        std::string text = formula::adjust_for_edit(formula.text, name_, edit);
        const bool other_text = text != formula.text;
        if (other_text && deletes(edit)) remember_result(cell, at);
        formula.text = std::move(text);
        bool other_place = false;
        if (own) {
            const Area reach = formula::adjust_area(formula.reach, edit).value_or(Area::cell(*place));
            std::string attributes = adjust_formula_attributes(formula.attributes, edit);
            other_place =
                formula.kind != Formula::Kind::Normal && (reach != formula.reach || attributes != formula.attributes);
            formula.anchor = *place;
            formula.reach = reach;
            formula.attributes = std::move(attributes);
        }
        if (other_text || other_place) mark(cell, Cell::formula_moved);
    });

    if (deletes(edit)) {
        std::unordered_set<std::uint32_t> losing;
        for (auto& [number, group] : groups) {
            const Formula& formula = formulas_[number - 1];
            if (group.forms().size() != 1 || group.text(formula.anchor) != formula.text) losing.insert(number);
        }
        visit([&](const Cell& cell, Position at) {
            if (losing.contains(cell.formula)) remember_result(cell, at);
        });
    }
    for (auto& [number, group] : groups) {
        const Position anchor = formulas_[number - 1].anchor;
        const auto place = after(anchor);
        const CellColumn* column = column_if(anchor.column);
        const Cell* master = column ? column->find(anchor.row) : nullptr;
        const Area reach = formulas_[number - 1].reach;
        const Area new_reach = own ? formula::adjust_area(reach, edit).value_or(Area{}) : reach;
        if (group.forms().size() == 1 && place && master && master->formula == number) {
            std::string text = group.text(anchor);
            Formula& formula = formulas_[number - 1];
            const bool follows = text != formula.text || new_reach != reach;
            formula.anchor = *place;
            formula.reach = new_reach;
            group.forms().begin()->second.formula = number;
            if (follows) {
                mark(*column_if(anchor.column)->find(anchor.row), Cell::formula_moved);
                formula.text = std::move(text);
            }
            continue;
        }
        group.parted = true;
        for (auto& [key, form] : group.forms()) {
            Formula formula;
            formula.text = group.text(form.before);
            formula.kind = Formula::Kind::Shared;
            formula.anchor = form.after;
            formula.reach = new_reach;
            form.formula = add_loaded_formula(std::move(formula));
        }
    }
    if (std::ranges::none_of(groups, [](const auto& entry) { return entry.second.parted; })) return differs;
    visit([&](Cell& cell, Position at) {
        const auto group = groups.find(cell.formula);
        if (group == groups.end() || !group->second.parted) return;
        const auto place = after(at);
        if (!place) return;
        cell.formula = group->second.form_of(at, *place).formula;
        mark(cell, Cell::formula_moved | Cell::unshared);
    });
    return differs;
}

bool Sheet::follow_in_rules(const formula::Edit& edit, bool own) {
    bool differs = false;
    for (ConditionalFormat& format : conditional_formats_) {
        for (ConditionalRule& rule : format.rules) {
            for (std::string& text : rule.formulas) {
                std::string adjusted = formula::adjust_rule_for_edit(text, name_, format.areas, edit);
                if (adjusted == text) continue;
                text = std::move(adjusted);
                differs = true;
            }
        }
        if (!own) continue;
        auto areas = formula::adjust_areas(format.areas, edit);
        if (areas == format.areas) continue;
        format.areas = std::move(areas);
        differs = true;
    }
    std::erase_if(conditional_formats_, [](const ConditionalFormat& format) { return format.areas.empty(); });
    conditional_formats_changed = conditional_formats_changed || differs;
    return differs;
}

}  // namespace kestrune::host
