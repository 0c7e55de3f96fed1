#pragma once

#include <array>
#include <string>

#include "excel/Range.h"

namespace kestrune::excel {

// Something drawn on a worksheet: a picture, a chart, a button, a text box.
class Shape : public Facade<Shape> {
  public:
    static constexpr std::string_view class_name = "Shape";
    static constexpr auto members = std::to_array<MemberRow>({
        {"BottomRightCell", Access::get},
        {"Name", Access::get_put},
        {"TopLeftCell", Access::get},
    });
    using Facade::Facade;

    // The cells under its corners.
    [[nodiscard]] Range BottomRightCell() const { return get<Range>("BottomRightCell"); }
    [[nodiscard]] Range TopLeftCell() const { return get<Range>("TopLeftCell"); }
    [[nodiscard]] std::string Name() const { return get<std::string>("Name"); }
};

}  // namespace kestrune::excel
