#pragma once

#include <string>

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Folders of the installation. Each path ends in the separator that the installation's own path is written with.

// Where the examples workbook lies.
std::string files_folder(const SharedState& shared);

// Where the lesson workbooks lie: the product value "LessonPath" when it is set, since lessons may be installed apart
// from the program; the installation's own lessons otherwise.
std::string lessons_folder(const SharedState& shared);

}  // namespace kestrune::core
