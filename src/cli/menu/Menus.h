#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/AddIn.h"
#include "cli/OpenWorkbook.h"
#include "cli/menu/MenuPath.h"

namespace kestrune::cli {

// Something that stands on a menu or a toolbar, or a toolbar.
struct MenuEntry {
    std::string caption;                        // as it shows; "Kestrune (toolbar)" for a toolbar
    std::shared_ptr<host::BarControl> control;  // null for a toolbar
    std::shared_ptr<host::CommandBar> opens;    // what a popup opens, and the toolbar; null for a button

    [[nodiscard]] bool enabled() const { return control ? control->enabled : opens->enabled; }
    [[nodiscard]] bool hidden() const { return !control && !opens->visible; }
    [[nodiscard]] bool checked() const { return control && control->state == host::msoButtonDown; }
    [[nodiscard]] std::string key() const;                     // that runs it; empty for none
    [[nodiscard]] std::string runs() const;                    // "20.3", "BRUndo", "RowHeadings.xls"; empty for a menu
    [[nodiscard]] std::optional<std::int32_t> swatch() const;  // BGR, of a button that shows a color
};

// The product's menus and toolbar in the embedded Excel, as a person finds them.
class Menus {
  public:
    // What it is given outlives it.
    explicit Menus(OpenWorkbook& book) : book_(book) {}

    // Builds them when they are not there, as the companion workbook does at the start.
    void make(AddIn& add_in) const;

    // The menus that add-ins put on the menu bar, from left to right, and the toolbars.
    [[nodiscard]] std::vector<MenuEntry> roots() const;
    // What an entry opens, hidden controls left out: a popup's action runs first, so that it fills. A greyed one does
    // not open, and holds nothing then.
    [[nodiscard]] std::vector<MenuEntry> open(const MenuEntry& entry) const;

    struct Found {
        MenuEntry entry;
        MenuPath path;  // in the captions as they are
    };
    // What stands at the end of a way, opening what is on it. Captions are told apart without case, access keys and
    // dots at the end. Failure, naming the nearest captions, where the way ends early.
    [[nodiscard]] Found find(const MenuPath& path) const;

  private:
    OpenWorkbook& book_;
};

}  // namespace kestrune::cli
