#pragma once

#include <span>
#include <string>

#include "menus/MenuTable.h"

namespace kestrune::companion {

// The customUI part of a workbook: a tab "Kestrune" on Excel's ribbon with everything that the rows, which are the
// product menu's, hold. Popups become menus, lines at the top part the tab's groups. A button's tag is its command
// request or its member, which mDOM's RunRibbonButton runs; a SmartCycle is a button for its next step. Excel reads it
// from 2007 on.
std::string ribbon_xml(std::span<const menus::MenuRow> rows);

}  // namespace kestrune::companion
