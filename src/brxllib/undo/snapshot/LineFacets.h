#pragma once

#include <array>

#include "brxllib/undo/snapshot/Facet.h"

namespace kestrune::brxllib::undo {

// The lines of cells. A line between two cells is read and written as one, whichever of them stores it.
extern const std::array<Facet, 9> line_facets;

}  // namespace kestrune::brxllib::undo
