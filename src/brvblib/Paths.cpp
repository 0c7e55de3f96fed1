#include "brvblib/Paths.h"

#include <fmt/format.h>

#include <system_error>

#include "automation/AutomationError.h"

namespace kestrune::brvblib {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const std::string& path, std::string_view what) {
    throw automation::AutomationError(automation::hresult::exception, "iFile", fmt::format("{}: {}", path, what));
}

}  // namespace

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
        fail(path, failure ? failure.message() : "cannot be made a folder");
    }
}

std::string set_aside(const std::string& path, std::string_view why) {
    if (!file_exists(path)) fail(path, "is not there");
    const fs::path from = to_path(path);
    constexpr int most = 999;
    for (int i = 1; i <= most; ++i) {
        fs::path to = from.parent_path() / from.stem();
        to += to_path(i == 1 ? fmt::format(" ({})", why) : fmt::format(" ({} {})", why, i));
        to += from.extension();
        std::error_code failure;
        if (fs::exists(fs::symlink_status(to, failure))) continue;
        fs::rename(from, to, failure);
        if (failure) fail(path, failure.message());
        return to_utf8(to);
    }
    fail(path, fmt::format("{} files stand aside already", most));
}

}  // namespace kestrune::brvblib
