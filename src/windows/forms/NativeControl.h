#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "forms/Control.h"

namespace kestrune::windows {

// The window of a control on a form's window, which identifies itself by a number. Null when Windows makes none.
HWND create_native(const forms::Control& control, HWND form, int number);

// Has the window show what the control holds: caption or text, what is chosen, whether it is enabled and seen. What it
// shows already is left alone, so that a person who types keeps the caret.
void show_in(HWND native, const forms::Control& control, bool items_too);

// Gives the columns of a list with columns their widths, in points of the design scaled by a function; what there is
// room for besides goes to the last, and all are narrower where there is too little.
void fit_columns(HWND native, const forms::Control& control, const std::function<int(double)>& pixels);

// A caption as Windows writes it, with "&" before the access key.
std::wstring native_caption(const forms::Control& control);

// The text of a window.
std::string text_in(HWND native);

// The colour that a tab control gives its pages: the form's own, or white, as the version of Windows has it.
[[nodiscard]] COLORREF ground_of(HWND tabs);

}  // namespace kestrune::windows
