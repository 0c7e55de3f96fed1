#include "forms/FileDialog.h"

#include <filesystem>
#include <string_view>

namespace kestrune::forms {
namespace {

std::filesystem::path path_of(std::string_view utf8) { return std::u8string(utf8.begin(), utf8.end()); }

std::string text_of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace

std::string path_meant(const FileDialog& dialog, const std::string& typed) {
    std::filesystem::path path = path_of(dialog.folder) / path_of(typed);
    const std::string_view first = std::string_view(dialog.pattern).substr(0, dialog.pattern.find(';'));
    const bool has_ending = first.starts_with("*.") && first.find_first_of("*?", 2) == std::string_view::npos;
    if (dialog.purpose == FileDialog::Purpose::Save && !path.has_extension() && has_ending) {
        path += path_of(first.substr(1));
    }
    return text_of(path);
}

}  // namespace kestrune::forms
