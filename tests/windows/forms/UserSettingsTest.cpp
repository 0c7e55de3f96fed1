#include <windows.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "automation/CreateObject.h"
#include "brvblib/Paths.h"
#include "brvblib/register_library.h"
#include "brxllib/register_library.h"
#include "core/bridges/SharedState.h"
#include "settings/LiveSettings.h"
#include "settings/dialog/fUserSettings.h"
#include "settings/mReadWrite.h"
#include "smart/ToolOptions.h"
#include "windows/TakePicture.h"
#include "windows/Win32Presenter.h"
#include "windows/forms/Hand.h"
#include "windows/services/services.h"

namespace kestrune::windows {
namespace {

// The settings dialog as people see it; the pictures are for looking at.
struct UserSettings : testing::Test {
    UserSettings() {
        std::filesystem::remove_all(folder);
        brvblib::Services services = windows::services(trace, presenter, "");
        services.data_folder = brvblib::with_separator(folder);
        brvblib::register_library(std::move(services));
        brxllib::register_library(trace, {.presenter = &presenter});
        shared.general_library = std::make_shared<core::diBRVBLib>(trace);
        shared.spreadsheet_library = std::make_shared<core::diBRXLLib>(trace);
        EXPECT_TRUE(shared.general_library->Create() && shared.spreadsheet_library->Create());
        settings::load_settings(shared, false);
    }
    ~UserSettings() override {
        for (const char* name : {"BRVBLib.iPublic", "BRXLLib.iPublic"}) automation::unregister_class(name);
        std::filesystem::remove_all(folder);
    }

    void show() { settings::ShowUserSettings(shared, smart::tools_with_options()); }
    [[nodiscard]] std::string file() const {
        std::ifstream in(folder + "/UserPreferences.xml", std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    void take(const std::string& name) {
        hand.then([] {});
        hand.then([name] { take_picture(GetActiveWindow(), "build/form-settings-" + name + ".bmp"); });
    }
    void next_page() {
        hand.then([] {
            BYTE state[256] = {};
            state[VK_CONTROL] = 0x80;
            SetKeyboardState(state);
            PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 1);
        });
        hand.then([] {
            BYTE none[256] = {};
            SetKeyboardState(none);
        });
    }

    std::string folder = "build/user-settings";
    Win32Presenter presenter{FormPlaces("")};
    automation::Trace trace;
    core::SharedState shared{presenter, trace};
    Hand hand;
};

// A change on one page is applied from another; what comes afterwards is cancelled.
TEST_F(UserSettings, AppliesWhatEveryPageHolds) {
    const std::string before = file();
    hand.access_key(L'z');
    hand.type(L"17");
    for (const char* page : {"general", "autocolor", "smart-tools", "style-cycles", "other-cycles", "styles"}) {
        take(page);
        next_page();
    }
    hand.access_key(L'y');  // Apply
    hand.then([this, before] {
        EXPECT_NE(file(), before);
        EXPECT_EQ(shared.settings().ZoomInterval, 17);
    });
    hand.access_key(L'z');
    hand.type(L"55");
    hand.key(VK_ESCAPE);
    show();
    EXPECT_EQ(shared.settings().ZoomInterval, 17);
}

TEST_F(UserSettings, FitsOtherScales) {
    const std::string before = file();
    hand.then([] {
        RECT place{0, 0, 1000, 700};
        SendMessageW(GetActiveWindow(), 0x02E0, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&place));
    });
    for (const char* page : {"general", "autocolor", "smart-tools", "style-cycles", "other-cycles", "styles"}) {
        take(std::string(page) + "-150-per-cent");
        next_page();
    }
    hand.key(VK_ESCAPE);
    show();
    EXPECT_EQ(file(), before);
}

}  // namespace
}  // namespace kestrune::windows
