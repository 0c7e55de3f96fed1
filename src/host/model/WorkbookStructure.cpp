#include <utility>

#include "formula/Edit.h"
#include "host/model/Workbook.h"

namespace kestrune::host {

void Workbook::require_applicable(const formula::Edit& edit) {
    for (const auto& each : sheets_) each->ensure_loaded();
    sheet(edit.sheet)->require_movable(edit);
    if (prepare_edit) (void)prepare_edit(edit);
}

void Workbook::apply(const formula::Edit& edit, bool like_behind) {
    Sheet& edited = *sheet(edit.sheet);
    // Whatever can fail comes first: reading the other sheets, and asking whether everything can follow.
    for (const auto& each : sheets_) each->ensure_loaded();
    edited.require_movable(edit);
    const auto move_parts = prepare_edit ? prepare_edit(edit) : std::function<void()>();

    for (const auto& each : sheets_) each->follow(edit);
    edited.move_cells(edit, like_behind);
    names_follow(edit);
    if (move_parts) move_parts();
    tables_.reset();
    edits_.push_back(edit);
    recalculate_on_load = true;
}

bool Workbook::follow_elsewhere(const formula::Edit& edit, bool all) {
    bool followed = false;
    for (const auto& each : sheets_) {
        if (all || each->loaded()) followed = each->follow(edit) || followed;
    }
    followed = names_follow(edit) || followed;
    recalculate_on_load = recalculate_on_load || followed;
    return followed;
}

bool Workbook::names_follow(const formula::Edit& edit) {
    bool followed = false;
    for (DefinedName& defined : names) {
        std::string refers_to = formula::adjust_name_for_edit(defined.refers_to, edit);
        if (refers_to == defined.refers_to) continue;
        defined.refers_to = std::move(refers_to);
        followed = names_changed = true;
    }
    return followed;
}

}  // namespace kestrune::host
