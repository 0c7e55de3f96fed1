#pragma once

#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "automation/AutomationError.h"
#include "brvblib/Services.h"
#include "native/PugiXmlParser.h"

namespace kestrune::settings {

// The preferences file of a fresh installation; tests/settings holds the product to it.
inline std::string default_preferences() {
    std::ifstream in(KESTRUNE_SOURCE_DIR "/tests/settings/golden/UserPreferences.xml", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// A disk in memory.
struct UserFiles : brvblib::Files {
    [[nodiscard]] std::string read(const std::string& path, std::size_t) const override {
        if (const auto found = files.find(path); found != files.end()) return found->second;
        throw automation::AutomationError(automation::hresult::exception, "iFile", path + ": is not there");
    }
    void write(const std::string& path, const std::string& bytes) const override { files[path] = bytes; }
    [[nodiscard]] bool may_write(const std::string&) const override { return true; }

    mutable std::map<std::string, std::string> files{{"./UserPreferences.xml", default_preferences()}};
};

// Services for a user who has a preferences file, on no disk.
inline brvblib::Services with_user_files(brvblib::Services services) {
    services.files = std::make_shared<UserFiles>();
    services.xml = std::make_shared<native::PugiXmlParser>();
    services.data_folder = "./";
    return services;
}

}  // namespace kestrune::settings
