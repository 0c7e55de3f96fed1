#pragma once

#include "core/bridges/SharedState.h"

namespace kestrune::menus {

// Information boxes that the menus offer.
void AboutSmartCycles(const core::SharedState& shared);
void AboutBRPaintbrush(const core::SharedState& shared);
void AboutHidingAndUnhiding(const core::SharedState& shared);
void AboutTrainingMenu(const core::SharedState& shared);
// The product, its version and where it keeps what belongs to the user.
void ShowAboutBrannoch(const core::SharedState& shared);

}  // namespace kestrune::menus
