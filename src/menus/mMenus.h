#pragma once

#include "core/bridges/SharedState.h"

namespace kestrune::menus {

// The product's menu on Excel's menu bar, its toolbar and the tutorial menu. What fails is skipped.

// Builds them anew: menus that are there already are replaced.
void CreateBRMenus(core::SharedState& shared);
// Takes them away, and with them everything of ours in Excel's own menus.
void DeleteBRMenus(core::SharedState& shared);
// Shows what can be done now and what is on: greyed and checked controls, the names of the SmartCycles.
void BRMenuState(core::SharedState& shared);
// The same of what stands on the product menu itself, as it opens; and of the SmartCycles' popups.
void UpdateMenuPopup(core::SharedState& shared);
void UpdateTogglesPopup(core::SharedState& shared);
// Shows the toolbar or hides it, now and the next time that Excel starts.
void ToggleToolbar(core::SharedState& shared);

// After the user's keys or settings changed: menus that are there show them.
void refresh_menus(core::SharedState& shared);

}  // namespace kestrune::menus
