#pragma once

#include <vector>

#include "idl/Library.h"

namespace kestrune::idl {

// Every library that COM clients see.
std::vector<Library> libraries();

}  // namespace kestrune::idl
