#pragma once

#include <string>
#include <vector>

#include "formula/Area.h"

namespace kestrune::host {

// Something drawn on a sheet: a picture, a chart, a button.
struct Drawing {
    std::string name;
    formula::Area cells;  // under it
};

// What lies on the cells of a sheet in parts that nobody models, by its place.
struct LyingThings {
    std::vector<formula::Area> comments;
    std::vector<std::vector<formula::Area>> validations;  // the cells of each rule
    std::vector<Drawing> drawings;
};

}  // namespace kestrune::host
