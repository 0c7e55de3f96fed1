#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kestrune::brvblib {

// Between the UTF-8 of automation and the system's paths.
std::filesystem::path to_path(std::string_view utf8);
std::string to_utf8(const std::filesystem::path& path);

// Whether there is a file, a folder. False as well for what cannot be looked at.
bool file_exists(const std::string& path);
bool folder_exists(const std::string& path);

// A folder's path, ending in a separator.
std::string with_separator(std::string folder);

// Makes a folder and those above it. Fails with an AutomationError, "PATH: why", when it is not there afterwards.
void create_folder(const std::string& path);

// Renames a file that is to make room, so that it stays beside what replaces it: "Preferences (unreadable).xml", with a
// counter where that is taken. The new path. Fails with an AutomationError, "PATH: why".
std::string set_aside(const std::string& path, std::string_view why);

}  // namespace kestrune::brvblib
