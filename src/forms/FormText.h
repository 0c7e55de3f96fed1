#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Form.h"

namespace kestrune::forms {

// What a box is called: its own caption, or that of the label before it; else its name.
[[nodiscard]] std::string title_of(const Form& form, const Control& control);

// What can be chosen in a list, combo box or tabs, so many at most: "Red, Green and 7 more".
[[nodiscard]] std::string items_text(const Control& control, std::int32_t most);

// One line of a form written down.
struct FormLine {
    const Control* control = nullptr;  // whose line it is
    int depth = 0;                     // how many frames hold it
    std::string text;                  // "(x) Contiguous row labels", "[ ] Skip text", "Interval: 3"
};

// A form as text, line by line, as far as it is seen. Push buttons, and the labels and spin buttons of boxes, have
// none.
[[nodiscard]] std::vector<FormLine> form_lines(const Form& form);

// What is chosen in a form, in one line, disabled controls left out: "Contiguous row labels; X: 3; Skip text".
[[nodiscard]] std::string chosen_text(const Form& form);

}  // namespace kestrune::forms
