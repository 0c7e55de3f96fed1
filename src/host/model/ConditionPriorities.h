#pragma once

#include <cstdint>
#include <vector>

#include "host/model/ConditionalFormat.h"

namespace kestrune::host {

// After a rule is gone: those that came right behind its priority move up, up to the next number that nobody has. Rules
// of extension lists keep theirs.
void close_priority_gap(std::vector<ConditionalFormat>& formats, std::int32_t gone);

}  // namespace kestrune::host
