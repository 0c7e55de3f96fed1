#pragma once

#include <string>

#include "number_format/FormatSection.h"

namespace kestrune::number_format {

// Gives the items of a section that has just been read their final meaning: which digits are decimals, which commas
// scale, which "m" are minutes. Gives back why the section makes no sense, or nothing.
[[nodiscard]] std::string lay_out(FormatSection& section);

}  // namespace kestrune::number_format
