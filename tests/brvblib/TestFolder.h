#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace kestrune::brvblib {

// A new folder for one test, gone with it. Tests run side by side, so no two share a name; blanks and an umlaut are in
// every name, since users' folders have them.
class TestFolder {
  public:
    TestFolder() { std::filesystem::create_directories(path_); }
    ~TestFolder() { std::filesystem::remove_all(path_); }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() /
        std::filesystem::path(u8"kestrune test \u00E4 ").concat(std::to_string(std::random_device{}()));
};

}  // namespace kestrune::brvblib
