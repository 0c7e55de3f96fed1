#pragma once

#include <string>

#include "cli/OpenWorkbook.h"
#include "cli/menu/MenuPath.h"

namespace kestrune::cli {

// What a click on a menu did, for a person.
struct MenuReport {
    std::string clicked;  // the way to it in captions
    std::string runs;     // "20.3", "BRUndo"
    bool ran = false;
};

// Clicks what stands at the end of a way through the product's menus. Failure, naming the way, when there is nothing,
// when it is greyed out, and for a menu, which a click only opens.
MenuReport run_menu_step(OpenWorkbook& book, const MenuPath& path);

}  // namespace kestrune::cli
