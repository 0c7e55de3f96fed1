#include "menus/AboutTexts.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <string>
#include <string_view>
#include <vector>

#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "forms/MsgBox.h"
#include "menus/ShortcutTexts.h"

namespace kestrune::menus {
namespace {

using automation::ResumeNext;
using core::SharedState;

void show(const SharedState& shared, std::string_view title, const std::vector<std::string>& paragraphs) {
    ResumeNext(shared.trace)([&] {
        forms::MsgBox(shared.presenter, fmt::format("{}", fmt::join(paragraphs, "\n\n")), forms::vbInformation,
                      fmt::format("{} -- {}", core::product_title, title));
    });
}

// A command as the texts name it, and the key that it has now.
struct NamedCommand {
    NamedCommand(const SharedState& shared, const ShortcutTexts& shortcuts, std::int32_t number)
        : shortcut(shortcuts.key(std::to_string(number))) {
        ResumeNext(shared.trace).assign(caption, [&] { return shared.general().text(2000 + number); });
        if (shortcut.empty()) shortcut = "shortcut not set";
    }

    std::string caption;
    std::string shortcut;
};

}  // namespace

void AboutSmartCycles(const SharedState& shared) {
    show(shared, "About SmartCycles",
         {"Kestrune SmartCycles allow you to quickly run through up to ten related formats or settings in a given "
          "category with the same keystroke.  You have complete control over which settings are added to each "
          "SmartCycle and in which order.",
          "The first time you run it, it will left align the cell's contents.  The next time it will center them.  "
          "Then it will right align them.  If it is run yet again, it will left align the cell contents once again.",
          "A large number of SmartCycles have already been set up for commonly used categories such as font color, "
          "underlining, centering, borders, and several number format categories.  ",
          "You can edit these SmartCycles and create new ones according to your needs and preferences.",
          "Please look up 'SmartCycles' in the Kestrune Help available from the main Kestrune menu for more details "
          "on setting up your own custom SmartCycles."});
}

void AboutBRPaintbrush(const SharedState& shared) {
    show(shared, "About BR Paintbrush",
         {"The Brannoch Paintbrush allows you to quickly copy and paste the formatting of a cell without affecting "
          "the contents of the source cell or the target range.  Aside from being faster and more easily accessible "
          "than Excel's native Copy/PasteSpecial feature, the BR Paintbrush has two significant advantages:",
          "First, the captured (copied) formatting style is retained in memory and is available to be applied until "
          "a new one is captured or selected.  With native Excel Copy/Paste, the copied cell is lost when you make "
          "an entry, insert or delete a row, etc.",
          "Secondly, the last 5 captured formatting styles are stored in the Kestrune style library for easy reuse "
          "in SmartCycles or elsewhere.  Changing the name from the default 'Paintbrush 1', 'Paintbrush 2', etc., "
          "will allow you to retain selected styles in the library indefinitely.",
          "Please refer to the Kestrune Help available from the main Kestrune menu for more details on the BR "
          "Paintbrush or on how to use captured styles throughout the application."});
}

void AboutHidingAndUnhiding(const SharedState& shared) {
    const ShortcutTexts shortcuts(shared);
    const NamedCommand rows(shared, shortcuts, 67);
    const NamedCommand columns(shared, shortcuts, 68);
    const NamedCommand unhide(shared, shortcuts, 77);
    show(
        shared, "About Hiding and Unhiding",
        {"Excel's default method for hiding rows and columns has a major weakness:  "
         "It makes the hidden selection very difficult to locate.",
         "Kestrune emphasizes and makes more easily accessible 'grouping' commands that leave a nice record of "
         "hidden rows and columns.",
         fmt::format("If you have been hiding rows and columns the old way, try '{} ({})' or '{} ({})' in this menu "
                     "to get started.  Try '{}' ({}) to fix this problem.",
                     rows.caption, rows.shortcut, columns.caption, columns.shortcut, unhide.caption, unhide.shortcut)});
}

void AboutTrainingMenu(const SharedState& shared) {
    const NamedCommand shrink(shared, ShortcutTexts(shared), 89);
    show(shared, "About the BR Tutorial Menu",
         {"This menu opens files that accompany the Brannoch Tarvelle training program.  ",
          "The files are categorized based on the chapters in the training program.  ",
          "The Brannoch Tarvelle is a comprehensive online training resource for financial modeling, which leads from "
          "the first column heading of a forecast to a complete valuation.  Its unique and interactive learning "
          "approach bridges the gap between academic textbooks and real-world, hands-on experience.",
          fmt::format("To work alongside the tutorial, shrink the size of the Excel screen using the '{}' feature ({})",
                      shrink.caption, shrink.shortcut)});
}

void ShowAboutBrannoch(const SharedState& shared) {
    std::vector<std::string> paragraphs{
        fmt::format("{} {}", core::product_title, KESTRUNE_VERSION),
        "Productivity tools for people who build financial models: SmartCycles, Smart tools, styles and AutoColor."};
    std::string folder;
    ResumeNext(shared.trace).assign(folder, [&] { return shared.general().data_folder(); });
    if (!folder.empty()) paragraphs.push_back("Your settings and hot keys are kept in:\n" + folder);
    show(shared, "About Brannoch", paragraphs);
}

}  // namespace kestrune::menus
