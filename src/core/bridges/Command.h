#pragma once

#include <cstdint>

namespace kestrune::core {

struct SharedState;

// What a numbered command does. The parameter is the number after the full stop of the request (3 in "20.3"),
// 0 when there is none and for commands that take none. A body runs resume-next: nothing that a workbook or a
// library refuses leaves it.
using CommandBody = void (*)(SharedState& state, std::int32_t parameter);

}  // namespace kestrune::core
