#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kestrune::companion {

// Fail with one line that names the file.
std::string content_of(const std::filesystem::path& file);
void write_file(const std::filesystem::path& file, std::string_view bytes);

}  // namespace kestrune::companion
