#pragma once

#include <string_view>
#include <vector>

#include "forms/Form.h"

namespace kestrune::forms {

struct Size {
    double width = 0;   // points
    double height = 0;  // points
};

struct Box {
    double left = 0;  // points from the left and the top of the form's inside, for what stands in frames as well
    double top = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] double right() const { return left + width; }
    [[nodiscard]] double bottom() const { return top + height; }
};

// How large texts are where the form is shown.
class Measures {
  public:
    virtual ~Measures() = default;
    // Of a text in the form's font; broken into lines of a width when that is not 0.
    [[nodiscard]] virtual Size text(std::string_view text, double width) const = 0;
};

struct Layout {
    Size inside;
    std::vector<Box> boxes;  // one a control, in the form's order
};

// Where a form's controls stand, by their designs: lines from the top, boxes in columns, push buttons at the right and
// of one size, frames and tabs as wide as the form. Sizes follow the captions. The inside is as large as what it holds
// needs; when it is to be larger, what stretches takes the rest. Controls that are not visible keep their places.
[[nodiscard]] Layout lay_out(const Form& form, const Measures& measures, Size inside = {});

}  // namespace kestrune::forms
