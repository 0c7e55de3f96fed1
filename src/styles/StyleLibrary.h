#pragma once

#include "styles/cStyles.h"

namespace kestrune::styles {

// A new collection of the styles that come with the product, "BR General" first.
StylesRef built_in_styles();

}  // namespace kestrune::styles
