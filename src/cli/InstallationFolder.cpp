#include "cli/InstallationFolder.h"

#include <filesystem>

namespace kestrune::cli {

std::string installation_folder() {
    std::error_code unknown;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", unknown);
    if (unknown) return {};
    return (program.parent_path().parent_path() / "share" / "kestrune").string();
}

}  // namespace kestrune::cli
