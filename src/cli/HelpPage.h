#pragma once

#include <string>

namespace kestrune::cli {

// The product's help: every command with its number, keys and what it does, as a page that needs nothing else.
std::string help_page();

}  // namespace kestrune::cli
