#include "brxllib/undo/HeldCells.h"

#include <algorithm>
#include <utility>

#include "automation/AutomationError.h"
#include "brxllib/autocolor/ClassReader.h"

namespace kestrune::brxllib::undo {

using formula::Area;

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

void DisplacedCells::look(const HeldCellsRef& cells) {
    if (auto areas = cells->areas()) displaced_.push_back({cells, std::move(*areas)});
}

void DisplacedCells::settle() {
    for (Place& place : displaced_) {
        if (const auto cells = place.cells.lock()) place.after = cells->areas();
    }
    std::erase_if(displaced_, [](const Place& place) { return place.cells.expired(); });
}

void DisplacedCells::keep_untouched() {
    std::erase_if(displaced_, [](const Place& place) {
        const auto cells = place.cells.lock();
        return !cells || cells->areas() != place.after;
    });
}

void DisplacedCells::hold_again() {
    for (const Place& place : displaced_) {
        const auto cells = place.cells.lock();
        if (cells && cells->areas() != place.before) cells->hold(place.before);
    }
    displaced_.clear();
}

}  // namespace kestrune::brxllib::undo
