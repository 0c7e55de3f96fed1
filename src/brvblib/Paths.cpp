#include "brvblib/Paths.h"

#include <fmt/format.h>

#include <system_error>

#include "automation/AutomationError.h"

namespace kestrune::brvblib {

namespace fs = std::filesystem;

fs::path to_path(std::string_view utf8) { return std::u8string(utf8.begin(), utf8.end()); }

std::string to_utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool file_exists(const std::string& path) {
    std::error_code ignored;
    return fs::is_regular_file(to_path(path), ignored);
}

bool folder_exists(const std::string& path) {
    std::error_code ignored;
    return fs::is_directory(to_path(path), ignored);
}

std::string with_separator(std::string folder) {
    constexpr auto separator = static_cast<char>(fs::path::preferred_separator);
    if (!folder.empty() && folder.back() != '/' && folder.back() != separator) folder += separator;
    return folder;
}

void create_folder(const std::string& path) {
    // A separator at the end would make it a name of nothing below the folder.
    const std::string bare =
        path.find_last_not_of("/\\") == std::string::npos ? path : path.substr(0, path.find_last_not_of("/\\") + 1);
    std::error_code failure;
    fs::create_directories(to_path(bare), failure);
    if (!folder_exists(path)) {
        throw automation::AutomationError(
            automation::hresult::exception, "iFile",
            fmt::format("{}: {}", path, failure ? failure.message() : "cannot be made a folder"));
    }
}

}  // namespace kestrune::brvblib
