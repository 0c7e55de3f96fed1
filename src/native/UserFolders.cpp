#include "native/UserFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>
#include <vector>

#include "brvblib/Paths.h"

namespace kestrune::native {
namespace {

bool is_absolute(std::string_view path) { return path.starts_with('/'); }

// The home that the system knows, for a program that was started without an environment.
std::string known_home() {
    const passwd* user = ::getpwuid(::getuid());  // NOLINT(concurrency-mt-unsafe)
    return user && user->pw_dir ? user->pw_dir : "";
}

}  // namespace

std::optional<std::string> environment_variable(const char* name) {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    if (!value) return std::nullopt;
    return value;
}

std::string data_folder(const Environment& environment) {
    std::string folder = environment("XDG_CONFIG_HOME").value_or("");
    if (!is_absolute(folder)) {
        std::string home = environment("HOME").value_or("");
        if (!is_absolute(home)) home = known_home();
        if (!is_absolute(home)) return {};
        folder = brvblib::with_separator(home) + ".config";
    }
    return brvblib::with_separator(folder) + "brannoch/kestrune/";
}

std::string product_file(const Environment& environment) {
    std::vector<std::string> files;
    const std::string folders = environment("XDG_CONFIG_DIRS").value_or("") + ":/etc/xdg";
    for (std::string_view rest = folders; !rest.empty();) {
        const std::string_view folder = rest.substr(0, rest.find(':'));
        rest.remove_prefix(std::min(rest.size(), folder.size() + 1));
        if (is_absolute(folder)) {
            files.push_back(brvblib::with_separator(std::string(folder)) + "brannoch/kestrune.conf");
        }
    }
    for (const std::string& file : files) {
        if (brvblib::file_exists(file)) return file;
    }
    return files.front();
}

}  // namespace kestrune::native
