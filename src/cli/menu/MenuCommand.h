#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kestrune::cli {

struct MenuOptions {
    std::string workbook;
    std::optional<std::string> path;  // show what this opens; everything without it
    bool json = false;
    std::string prefs;                  // the preferences file whose SmartCycles they list; the user's own when empty
    std::vector<std::string> settings;  // NAME=VALUE each, other values for single settings
};

// `kestrune menu`: the menus and toolbar over a workbook as a tree, with keys and requests.
void show_menus(const MenuOptions& options);

}  // namespace kestrune::cli
