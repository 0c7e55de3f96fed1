#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kestrune::cli {

struct ShowOptions {
    std::string workbook;
    std::optional<std::string> range;
    std::optional<std::string> html;    // a page is written here
    std::string color = "auto";         // auto, always, never
    bool classes = false;               // what cells hold instead of their colours
    bool json = false;                  // the classes alone, for programs
    std::string prefs;                  // the preferences file to tell classes by; the user's own when empty
    std::vector<std::string> settings;  // NAME=VALUE each, other values for single settings
};

// `kestrune show`: a sheet drawn in the terminal, or the workbook as a page; with classes also as JSON.
void show(const ShowOptions& options);

}  // namespace kestrune::cli
