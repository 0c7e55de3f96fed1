#pragma once

#include <memory>

#include "automation/Events.h"
#include "brxllib/Library.h"
#include "brxllib/autocolor/Settings.h"

namespace kestrune::brxllib {

// Which fills of a whole selection at once, as Ctrl+Enter makes them, are coloured: while AutoColor is on, and while it
// is off.
struct CtrlEnterSwitch {
    bool while_on = true;
    bool while_off = false;
};

// Colours cells as they change, as long as somebody wants it. Listens to Excel only then: a macro that runs at every
// change makes Excel forget what it could undo.
class LiveColoring {
  public:
    // Both outlive the object.
    LiveColoring(const Library& library, const AutoColorSettings& settings) : library_(library), settings_(settings) {}

    CtrlEnterSwitch ctrl_enter;

    // Takes a change of the settings, the switch or the library's application in. Fails when Excel raises no events.
    void update();

  private:
    void hear(std::string_view event, const automation::Arguments& arguments) const;
    [[nodiscard]] bool wanted(const excel::Range& changed) const;

    const Library& library_;
    const AutoColorSettings& settings_;
    automation::ObjectRef heard_;  // the application that the subscription is for
    std::unique_ptr<automation::Subscription> subscription_;
};

}  // namespace kestrune::brxllib
