#include <set>

#include "core/AddInTest.h"
#include "core/CommandTable.h"

namespace kestrune::core {
namespace {

using automation::AutomationError;
using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::Value;

struct LibrariesTest : AddInTest {
    static ObjectRef part(const char* library, const char* name) {
        return automation::to_object(get(*automation::CreateObject(library), name));
    }
};

TEST_F(LibrariesTest, EveryCommandHasItsTexts) {
    const ObjectRef strings = part("BRVBLib.iPublic", "iString");
    std::set<std::string> names;
    std::set<std::string> keys;
    for (const Command& command : commands()) {
        const auto text = [&](std::int32_t base) {
            return automation::to_text(call(*strings, "Text", {base + command.number}));
        };
        names.insert(text(2000));
        for (const std::int32_t base : {2000, 12000, 32000, 42000}) EXPECT_NE(text(base), "") << base + command.number;
        EXPECT_THAT(text(12000), testing::EndsWith("."));
        // A topic is part of a defined name, "bbr.kestrune.SmartCopy.start.ebr".
        EXPECT_THAT(text(42000), testing::MatchesRegex("[A-Za-z]+"));
        keys.insert(text(22000));
    }
    EXPECT_EQ(names.size(), commands().size()) << "no two commands share a name";
    // What everybody presses in Excel stays Excel's.
    for (const char* excels : {"Ctrl+Shift+L", "Ctrl+Shift+V", "Ctrl+Shift+;", "Ctrl+Shift+O", "Ctrl+Shift+Home"}) {
        EXPECT_FALSE(keys.contains(excels)) << excels;
    }
    // The numbers of the string table and those of the command table mean the same commands.
    EXPECT_EQ(call(*strings, "Text", {2019}), Value("General Number SmartCycle"));
    EXPECT_EQ(call(*strings, "Text", {2097}), Value("Right Indent SmartCycle"));
    EXPECT_EQ(call(*strings, "Text", {22020}), Value("Ctrl+Shift+4"));
    EXPECT_EQ(call(*strings, "Text", {32099}), Value("View"));
    EXPECT_EQ(call(*strings, "Text", {42001}), Value("SmartCopy"));
    for (const std::int32_t nobodys : {-1, 0, 1999, 2103, 3024, 12103, 52000}) {
        EXPECT_THROW(call(*strings, "Text", {nobodys}), AutomationError) << nobodys;
    }
}

TEST_F(LibrariesTest, NearestColorComesFromTheWorkbooksPalette) {
    const ObjectRef workbooks = part("BRXLLib.iPublic", "iWorkbook");
    const auto palette = application->workbook;
    const auto nearest = [&](std::int32_t color) {
        return automation::to_integer(call(*workbooks, "NearestColorIndex", {color, palette}));
    };
    palette->colors.assign(56, 0xFFFFFF);
    palette->colors[0] = 0.0;
    palette->colors[2] = 0x0000FF;  // red; blue is the high byte
    palette->colors[4] = 0xFF0000;
    palette->colors[6] = 0x0000FF;
    EXPECT_EQ(nearest(0x0000FF), 3) << "of equals, the first";
    EXPECT_EQ(nearest(0x100010), 1);
    EXPECT_EQ(nearest(0xE02010), 5);
    EXPECT_EQ(nearest(0xF0F0F0), 2);
    EXPECT_EQ(palette->palette_reads, 4) << "one call to Excel for each colour";
    palette->colors[0] = 0xE02010;
    EXPECT_EQ(nearest(0xE02010), 1) << "an edited palette counts at once";
    palette->colors.resize(55);
    EXPECT_THROW(nearest(0), AutomationError);
    EXPECT_THROW(call(*workbooks, "NearestColorIndex", {0, nullptr}), AutomationError);
}

TEST_F(LibrariesTest, ProductSettingsDecideAboutStartUp) {
    const auto answers = [&](brvblib::StatedValues::Values values) {
        brvblib::register_library({.trace = trace,
                                   .presenter = presenter,
                                   .products = std::make_shared<brvblib::StatedValues>(std::move(values))});
        const ObjectRef product = part("BRVBLib.iPublic", "iProduct");
        return std::pair{call(*product, "ShowExamplesAtStart"), call(*product, "AllowsTraining")};
    };
    EXPECT_EQ(answers({}), std::pair(Value(false), Value(true)));
    EXPECT_EQ(answers({{"ShowExamples", true}, {"TT", 0}}), std::pair(Value(true), Value(false)));
}

TEST_F(LibrariesTest, AnApplicationStaysUntilTheLastClientLeaves) {
    const ObjectRef library = automation::CreateObject("BRXLLib.iPublic");
    const ObjectRef product = automation::to_object(get(*library, "iProduct"));
    const ObjectRef workbooks = automation::to_object(get(*library, "iWorkbook"));
    for (const char* client : {"One", "Two"}) call(*product, "RegisterClient", {client, client, client});
    call(*library, "SetApplication", {application});
    EXPECT_EQ(call(*library, "UnregisterClient", {"one"}), Value(true));
    EXPECT_EQ(call(*workbooks, "MayRunCommand"), Value(true));
    EXPECT_EQ(call(*library, "UnregisterClient", {"Nobody"}), Value(false));
    EXPECT_EQ(call(*library, "UnregisterClient", {"Two"}), Value(true));
    EXPECT_EQ(call(*workbooks, "MayRunCommand"), Value(false));
}

}  // namespace
}  // namespace kestrune::core
