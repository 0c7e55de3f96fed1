#pragma once

#include <string>

namespace kestrune::cli {

// Where the files that come with the program lie (examples, lessons): share/kestrune beside the bin folder that it
// runs from. Empty when the system does not tell.
std::string installation_folder();

}  // namespace kestrune::cli
