#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::host::test {

struct TestPart {
    std::string name;
    std::string content;
    bool stored = false;
};

/// The parts of a workbook with one sheet, in an order that no writer of ours would choose.
std::vector<TestPart> workbook_parts();
/// The same with one part's content replaced, or left out when `content` is null.
std::vector<TestPart> workbook_parts_but(std::string_view name, const char* content);

/// A zip archive of these parts as libzip writes it.
std::string zip_of(const std::vector<TestPart>& parts);

/// What libzip makes of an archive.
struct WitnessEntry {
    std::string name;
    std::string content;
    std::string packed;
    std::uint16_t method = 0;
};
std::vector<WitnessEntry> witness(const std::string& archive);

std::string file_text(const std::filesystem::path& path);
void write_file(const std::filesystem::path& path, std::string_view bytes);

/// The PackageError's line, or what happened instead.
std::string failure_of(const std::function<void()>& work);

/// A folder of its own for one test, gone afterwards.
class TestFolder {
  public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();
    std::filesystem::path path(std::string_view name) const { return folder_ / name; }
    std::string operator/(std::string_view name) const { return path(name).string(); }
    /// The names in the folder, sorted.
    std::vector<std::string> names() const;

  private:
    std::filesystem::path folder_;
};

}  // namespace kestrune::host::test
