#pragma once

#include <memory>

#include "host/objects/HostSession.h"
#include "host/objects/bars/CommandBars.h"

namespace kestrune::host {

// Runs a control's action, with the control as the bars' ActionControl: what a click does, and the opening of a popup.
// What the macro answers; Empty for a Sub, and for a control without an action. Fails as the macro does.
automation::Value click(HostSession& session, const std::shared_ptr<BarControl>& control);

}  // namespace kestrune::host
