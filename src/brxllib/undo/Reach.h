#pragma once

#include <cstdint>

namespace kestrune::brxllib::undo {

// Which cells a command changes, as it is begun: what it changes beyond them it records itself.
enum class Reach : std::int32_t {
    Recorded = 0,  // none but those it records itself
    Selection = 1,
    Sheet = 2,     // the active one
    Workbook = 3,  // every worksheet of the active one
};

}  // namespace kestrune::brxllib::undo
