#pragma once

#include <filesystem>

namespace kestrune::windows {

// Gives the user a preferences file: a newcomer's start shows a message that waits for somebody.
inline void become_known_user() {
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(_wgetenv(L"APPDATA")) / "Brannoch" / "Kestrune";
    fs::create_directories(folder);
    fs::copy_file(KESTRUNE_SOURCE_DIR "/tests/settings/golden/UserPreferences.xml", folder / "UserPreferences.xml",
                  fs::copy_options::overwrite_existing);
}

}  // namespace kestrune::windows
