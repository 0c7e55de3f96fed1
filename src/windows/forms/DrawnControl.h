#pragma once

#include <windows.h>

#include "forms/Control.h"
#include "windows/forms/Scale.h"

namespace kestrune::windows {

// Draws the picture of an image control, on a colour (BGR).
void draw_picture(const forms::Control& control, HDC context, const RECT& box, COLORREF ground);

// Draws an item of a combo box whose items have pictures, or what stands in the box itself.
void draw_item(const forms::Control& combo, const Scale& scale, const DRAWITEMSTRUCT& item);

// Gives the items of such a combo box the height that their font needs.
void fit_items(HWND combo, const Scale& scale);

}  // namespace kestrune::windows
