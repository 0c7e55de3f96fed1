#pragma once

#include "forms/Control.h"

namespace kestrune::settings {

// Has a combo box offer the colors that have names, each with a patch of it where the design has pictures.
void offer_colors(forms::Control& combo);
// The same for fills: no fill first, and without white, which is that.
void offer_fills(forms::Control& combo);

}  // namespace kestrune::settings
