#pragma once

#include <string>
#include <vector>

#include "brvblib/hotkeys/HotKeyTable.h"

namespace kestrune::brvblib {

// A page for people to print: the commands that have keys, by group, in their order.
std::string hot_key_page(const std::vector<HotKeyRow>& rows);

}  // namespace kestrune::brvblib
