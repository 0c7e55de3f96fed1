#pragma once

#include <string>

#include "host/model/Sheet.h"

namespace kestrune::cli {

// An area of a sheet drawn with letters: texts as displayed, aligned in columns of their own width, with
// outline levels and borders; with `color` also fills, font colours and attributes (ANSI sequences).
std::string terminal_grid(host::Sheet& sheet, const formula::Area& area, bool color);

}  // namespace kestrune::cli
