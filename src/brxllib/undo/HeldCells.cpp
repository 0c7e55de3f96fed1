#include "brxllib/undo/HeldCells.h"

#include <algorithm>
#include <utility>

#include "automation/AutomationError.h"
#include "brxllib/autocolor/ClassReader.h"

namespace kestrune::brxllib::undo {

using formula::Area;

namespace {

// What comes in in the middle of such cells leaves them as they are, and takes some with it when it goes.
bool reach_end(const std::vector<Area>& areas) {
    return std::ranges::any_of(areas, [](const Area& area) {
        return area.last_row == formula::max_rows || area.last_column == formula::max_columns;
    });
}

}  // namespace

HeldCells::HeldCells(excel::Application application, excel::Range cells)
    : application_(std::move(application)), sheet_(cells.Worksheet()), range_(std::move(cells)) {}

std::optional<std::vector<Area>> HeldCells::areas() const {
    try {
        return areas_of(range_);
    } catch (const automation::AutomationError&) {
        return std::nullopt;
    }
}

void HeldCells::hold(const std::vector<Area>& areas) { range_ = range_of(application_, sheet_, areas); }

void LostCells::look(const HeldCellsRef& cells) {
    if (auto areas = cells->areas()) lost_.push_back({cells, std::move(*areas)});
}

void LostCells::settle() {
    for (Lost& lost : lost_) {
        if (const auto cells = lost.cells.lock()) lost.after = cells->areas();
    }
    std::erase_if(lost_, [](const Lost& lost) {
        return lost.cells.expired() || (lost.after == lost.before && !reach_end(lost.before));
    });
}

void LostCells::keep_untouched() {
    std::erase_if(lost_, [](const Lost& lost) {
        const auto cells = lost.cells.lock();
        return !cells || cells->areas() != lost.after;
    });
}

void LostCells::hold_again() {
    for (const Lost& lost : lost_) {
        const auto cells = lost.cells.lock();
        if (cells && cells->areas() != lost.before) cells->hold(lost.before);
    }
    lost_.clear();
}

}  // namespace kestrune::brxllib::undo
