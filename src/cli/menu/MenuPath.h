#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrune::cli {

// The way to something on a menu: a caption or a position from 1 for each menu that opens, and what stands there.
using MenuPath = std::vector<std::string>;

// "Kestrune/Format/Currency/3"; "//" stands for a "/" in a caption. UsageError for a way with a gap in it.
MenuPath parse_menu_path(std::string_view text);

// The same as text: "Kestrune/Format/A//B".
std::string menu_path_text(const MenuPath& path);

}  // namespace kestrune::cli
