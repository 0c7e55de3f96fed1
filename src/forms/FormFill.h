#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "forms/Form.h"

namespace kestrune::forms {

// What somebody wants to stand in a control of a form that is yet to be shown.
struct FormFill {
    std::string form;     // its class, "fSmartCopy", whatever the case
    std::string control;  // by name
    std::string value;
};

// A fill that the form does not take: one line that names it and says why.
class FormFillError : public std::runtime_error {
  public:
    FormFillError(const FormFill& fill, std::string_view why)
        : std::runtime_error(fill.form + "." + fill.control + "=" + fill.value + ": " + std::string(why)) {}
};

// Whether a person can give the control a value.
[[nodiscard]] bool takes_value(const Control& control);

// Has a control take a value written as text, as a person at the form would: True or False for option buttons and check
// boxes, the text of a box, an item or the beginning of one for lists and page tabs ("#3" for the third), the number of
// a spin button, "click" for a push button. Empty, or why it does not take it; then it is as it was.
[[nodiscard]] std::string enter_value(Form& form, Control& control, std::string_view value);

// FormFillError for what the form does not take.
void apply(const FormFill& fill, Form& form);

}  // namespace kestrune::forms
