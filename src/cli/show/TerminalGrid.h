#pragma once

#include <string>

#include "cli/show/Classes.h"
#include "host/model/Sheet.h"

namespace kestrune::cli {

// An area of a sheet drawn with letters: texts as displayed, aligned in columns of their own width, with
// outline levels and borders; with `color` also fills, font colours and attributes (ANSI sequences). With the classes
// of its cells each text has the letter of its class in front, with `color` on the class's fill, and a legend follows.
std::string terminal_grid(host::Sheet& sheet, const formula::Area& area, bool color, const Classes* classes = nullptr);

}  // namespace kestrune::cli
