#pragma once

#include <string>
#include <string_view>

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// The full name of the examples workbook.
std::string examples_full_name(const SharedState& shared);

// Opens the examples workbook, or brings the open one up to date, and goes to where a topic begins; without a topic
// to nowhere in particular. A workbook that cannot be opened is told to the user, once.
void show_examples_workbook(SharedState& shared, std::string_view topic = {});

}  // namespace kestrune::core
