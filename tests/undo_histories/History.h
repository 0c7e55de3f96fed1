#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "undo_histories/World.h"

namespace kestrune::histories {

// What to make of a history at its end.
enum class Ending : std::uint8_t { AsItIs, Undone, UndoneAndRedone };

struct Played {
    std::size_t steps = 0;                // that could be undone when it had been lived
    std::vector<std::string> complaints;  // messages of the add-in: undo that was refused
};

// Lives a random history in a world: commands, macros behind undo points and steps of their own, undo and redo in
// between. The same for the same seed; the end is undone or not. A fault is on while undo and redo are at work.
Played play(const World& world, std::uint64_t seed, Ending ending, Fault* fault = nullptr);

// What is wrong with undo in this history: differences to the start after undoing it all, to the end after redoing it
// all, complaints. Empty when nothing is.
std::vector<std::string> faults_of_history(std::uint64_t seed, Fault* fault = nullptr);

}  // namespace kestrune::histories
