#pragma once

#include <windows.h>

#include "forms/Looks.h"
#include "windows/forms/Scale.h"

namespace kestrune::windows {

// Draws a sample as a cell of a sheet, with the lines of its neighbours around it.
void draw_sample(const forms::Looks& looks, const Scale& scale, HDC context, const RECT& box);

}  // namespace kestrune::windows
