#pragma once

#include <string>

#include "formula/A1.h"
#include "formula/Area.h"
#include "formula/Reference.h"

namespace kestrune::host {

// An area as R1C1 text; relative parts are distances from base. Whole rows and columns name no others.
std::string r1c1_text(const formula::Area& area, formula::Absolute absolute, formula::Position base);

}  // namespace kestrune::host
