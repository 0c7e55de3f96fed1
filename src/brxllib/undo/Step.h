#pragma once

#include <memory>
#include <string>
#include <vector>

#include "brxllib/undo/Change.h"
#include "excel/Range.h"

namespace kestrune::brxllib::undo {

// What one press of undo takes back: a command, or what happened since an undo point.
struct Step {
    std::string name;      // "Currency SmartCycle"
    std::string place{};   // "Model!B4:F20"; empty where a step has no one place
    HeldCellsRef cells{};  // what was selected, for a step of a selection
    std::vector<std::unique_ptr<Change>> changes{};

    [[nodiscard]] std::string description() const { return place.empty() ? name : name + " on " + place; }
    [[nodiscard]] std::size_t bytes() const {
        std::size_t sum = sizeof(Step) + name.size() + place.size();
        for (const auto& change : changes) sum += change->bytes();
        return sum;
    }
};

}  // namespace kestrune::brxllib::undo
