#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "automation/CreateObject.h"
#include "brvblib/SystemServices.h"
#include "brvblib/TestFolder.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "core/bridges/SharedState.h"
#include "forms/ScriptedPresenter.h"

namespace kestrune::settings {

// The settings in front of the libraries and a user's folder on this system's disk.
struct PreferencesTest : testing::Test {
    PreferencesTest() {
        brvblib::Services services{.trace = trace, .presenter = presenter};
        brvblib::add_system_services(services);
        services.data_folder = text_of(folder) + "/";
        services.now = [] { return automation::Date{46096.75}; };  // 15 March 2026
        brvblib::register_library(std::move(services));
        brxllib::register_library(trace, {.presenter = &presenter});
        shared.general_library = std::make_shared<core::diBRVBLib>(trace);
        shared.spreadsheet_library = std::make_shared<core::diBRXLLib>(trace);
        EXPECT_TRUE(shared.general_library->Create() && shared.spreadsheet_library->Create());
        trace.listen([this](std::string_view line) { skipped.emplace_back(line); });
    }
    ~PreferencesTest() override {
        for (const char* name : {"BRVBLib.iPublic", "BRXLLib.iPublic"}) automation::unregister_class(name);
    }

    static std::string text_of(const std::filesystem::path& path) {
        const std::u8string text = path.u8string();
        return {text.begin(), text.end()};
    }
    [[nodiscard]] std::string path(const char* name) const { return text_of(folder / name); }
    [[nodiscard]] std::string own_path() const { return text_of(folder) + "/UserPreferences.xml"; }
    static std::string bytes_of(const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    [[nodiscard]] std::string bytes(const char* name) const { return bytes_of(folder / name); }
    void put_file(const char* name, std::string_view bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
    // The texts of the messages shown since the last look.
    std::vector<std::string> messages() {
        std::vector<std::string> texts;
        for (; seen < presenter.messages().size(); ++seen) texts.push_back(presenter.messages()[seen].text);
        return texts;
    }

    brvblib::TestFolder place;
    const std::filesystem::path& folder = place.path();
    automation::Trace trace;
    std::vector<std::string> skipped;
    forms::ScriptedPresenter presenter;
    core::SharedState shared{presenter, trace};
    std::size_t seen = 0;
};

}  // namespace kestrune::settings
