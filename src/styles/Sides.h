#pragma once

#include <array>
#include <cstdint>

#include "styles/StyleFields.h"

namespace kestrune::styles {

// The four sides that a style may border, in the order in which they are drawn and looked at.
struct Side {
    bool StyleFields::*selected;
    std::int32_t edge;  // XlBordersIndex
};
inline constexpr std::array<Side, 4> sides{{
    {&StyleFields::BorderLeft, excel::xlEdgeLeft},
    {&StyleFields::BorderTop, excel::xlEdgeTop},
    {&StyleFields::BorderBottom, excel::xlEdgeBottom},
    {&StyleFields::BorderRight, excel::xlEdgeRight},
}};

}  // namespace kestrune::styles
