#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <objbase.h>

#include "automation/Conversion.h"
#include "windows/com/ComClasses.h"
#include "windows/com/Unicode.h"
#include "windows/dll/BoxWatcher.h"
#include "windows/dll/Dll.h"
#include "windows/dll/KnownUser.h"

namespace kestrune::windows {
namespace {

struct Start {
    std::vector<SeenBox> boxes;
    bool has_commands = false;
};

// Loads the add-in as the companion workbook does, with whatever of the libraries is registered. A box's picture is
// left beside the DLLs.
Start start_add_in(const char* picture) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    Start start;
    {
        const Dll dll(dll_path("KestruneXL"));
        const Registered registered(dll);
        BoxWatcher watcher(dll_path(picture).replace_extension(".bmp"));
        const auto entry = create_com_object("KestruneXL.iPublic");
        automation::call(*entry, "NewPublic", {nullptr, nullptr});
        start.has_commands = automation::to_object(automation::call(*entry, "NewGlobal")) != nullptr;
        start.boxes = watcher.stop();
    }
    CoUninitialize();
    return start;
}

void expect_load_failure(const Start& start, const char* text) {
    ASSERT_EQ(start.boxes.size(), 1U);
    const SeenBox& box = start.boxes.front();
    EXPECT_EQ(box.title, "Brannoch Kestrune");
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.icon, "critical");
    EXPECT_THAT(box.buttons, testing::ElementsAre("OK"));
    EXPECT_TRUE(start.has_commands);
}

TEST(LoadFailure, OfTheGeneralLibraryIsTheOneMessage) {
    expect_load_failure(start_add_in("no-BRVBLib"),
                        "Unable to load the Brannoch VB Library from Kestrune.  Please contact technical support.");
}

TEST(LoadFailure, OfTheSpreadsheetLibraryIsTheOneMessage) {
    const Dll general(dll_path("BRVBLib"));
    const Registered registered(general);
    expect_load_failure(start_add_in("no-BRXLLib"),
                        "Unable to load the BR Excel Library from Kestrune.  Please contact technical support.");
}

TEST(LoadFailure, DoesNotHappenWhenBothLibrariesAreThere) {
    become_known_user();
    const Dll general(dll_path("BRVBLib"));
    const Dll spreadsheet(dll_path("BRXLLib"));
    const Registered first(general);
    const Registered second(spreadsheet);
    EXPECT_EQ(start_add_in("complete").boxes.size(), 0U);
}

}  // namespace
}  // namespace kestrune::windows
