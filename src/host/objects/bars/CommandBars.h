#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "automation/Value.h"
#include "host/objects/bars/BarConstants.h"

namespace kestrune::host {

struct CommandBar;

// A button or a popup on a bar.
struct BarControl {
    std::int32_t type = msoControlButton;
    std::int32_t id = 1;  // 1: not one of Office's own
    bool built_in = false;
    std::string caption;
    std::string tag;
    std::string parameter;
    std::string on_action;
    std::string tooltip;  // empty: the caption
    std::string description;
    std::string shortcut;
    bool begin_group = false;
    bool enabled = true;
    bool visible = true;
    std::int32_t state = msoButtonUp;
    std::int32_t style = msoButtonAutomatic;
    std::int32_t face_id = 0;
    automation::Value picture;  // what a caller put there; Empty without
    automation::Value mask;
    std::shared_ptr<CommandBar> popup;  // what opens; null for a button
    std::weak_ptr<CommandBar> bar;      // where it stands; gone once it is deleted
};

// A menu bar, a toolbar, or what a popup opens.
struct CommandBar {
    std::string name;
    std::int32_t type = msoBarTypeNormal;
    std::int32_t position = msoBarTop;
    bool built_in = false;
    bool enabled = true;
    bool visible = false;
    std::vector<std::shared_ptr<BarControl>> controls;
    std::weak_ptr<BarControl> opened_by;  // the popup that opens it
    bool deleted = false;
};

// The bars of the application.
struct CommandBars {
    std::vector<std::shared_ptr<CommandBar>> bars;
    std::weak_ptr<BarControl> action_control;  // whose action runs

    // Excel's own: the worksheet menu bar with its popups first. They are there for others to find their places by;
    // their own commands are not.
    static std::shared_ptr<CommandBars> built_in();
};

// Marks a deleted bar and cuts its controls off, and so with the popups on it.
void discard(CommandBar& bar);

}  // namespace kestrune::host
