// Writes the interface definitions of all libraries, or checks that they say what the member tables say.
//   kestrune-idl [--check] FOLDER

#include <fmt/format.h>

#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "idl/libraries/libraries.h"

namespace kestrune::idl {
namespace {

std::string content_of(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Whether the file holds the text, or does now.
bool settle(const std::filesystem::path& path, const std::string& text, bool check) {
    if (content_of(path) == text) return true;
    if (check) {
        fmt::print(stderr, "{}: is not what the member tables say; run scripts/idl and commit what it writes\n",
                   path.string());
        return false;
    }
    std::ofstream file(path, std::ios::binary);
    file << text << std::flush;
    if (!file) fmt::print(stderr, "{}: cannot be written\n", path.string());
    return static_cast<bool>(file);
}

}  // namespace
}  // namespace kestrune::idl

int main(int argc, char** argv) try {
    const bool check = argc == 3 && argv[1] == std::string_view("--check");
    if (argc != 2 && !check) {
        fmt::print(stderr, "usage: kestrune-idl [--check] FOLDER\n");
        return 2;
    }
    const std::filesystem::path folder = argv[argc - 1];
    bool settled = true;
    for (const auto& library : kestrune::idl::libraries()) {
        const auto path = folder / fmt::format("{}.idl", library.name);
        settled = kestrune::idl::settle(path, idl_of(library), check) && settled;
    }
    return settled ? 0 : 1;
} catch (const std::exception& error) {
    fmt::print(stderr, "kestrune-idl: {}\n", error.what());
    return 1;
}
