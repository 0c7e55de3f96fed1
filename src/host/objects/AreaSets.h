#pragma once

#include <vector>

#include "formula/Area.h"

namespace kestrune::host {

// Adds an area as a union does: one that is there already adds nothing, and two that make up one
// rectangle become it.
void add_area(std::vector<formula::Area>& areas, formula::Area area);

// The cells that both sets have, area by area.
std::vector<formula::Area> common_areas(const std::vector<formula::Area>& first,
                                        const std::vector<formula::Area>& second);

}  // namespace kestrune::host
