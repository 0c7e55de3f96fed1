#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrune::brvblib {

// The sections of a number format, parted by ";". A ";" in double quotes, in brackets, or behind one of the signs that
// take the next character for themselves (\ shows it, _ leaves its width, * repeats it) parts nothing. An empty format
// is one empty section; joined with ";" the sections are the format again.
std::vector<std::string> number_format_sections(std::string_view format);

}  // namespace kestrune::brvblib
