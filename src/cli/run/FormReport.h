#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "forms/Form.h"

namespace kestrune::cli {

// A dialog that was shown and closed: its title, what was chosen in it and the button that closed it, in one line.
std::string form_line(const forms::Form& form);

// The same for programs: the values of all its controls by name.
nlohmann::ordered_json form_json(const forms::Form& form);

}  // namespace kestrune::cli
