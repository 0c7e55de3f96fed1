#include "windows/com/EventTable.h"

#include <algorithm>

namespace kestrune::windows {
namespace {

// The identifiers of Excel's AppEvents interface.
constexpr Event application_events[] = {
    {"SheetSelectionChange", 0x616}, {"SheetActivate", 0x619},      {"SheetCalculate", 0x61B},
    {"SheetChange", 0x61C},          {"NewWorkbook", 0x61D},        {"WorkbookOpen", 0x61F},
    {"WorkbookActivate", 0x620},     {"WorkbookDeactivate", 0x621}, {"WorkbookBeforeClose", 0x622},
};

constexpr EventSet sets[] = {
    {"Application", {0x00024413, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}}, application_events},
};

}  // namespace

const Event* EventSet::find(std::string_view name) const {
    const auto found =
        std::ranges::find_if(events, [&](const Event& event) { return automation::same_text(event.name, name); });
    return found == events.end() ? nullptr : &*found;
}

const Event* EventSet::find(DISPID id) const {
    const auto found = std::ranges::find(events, id, &Event::id);
    return found == events.end() ? nullptr : &*found;
}

std::span<const EventSet> event_sets() { return sets; }

const EventSet* events_of(std::string_view class_name) {
    const auto found = std::ranges::find(sets, class_name, &EventSet::class_name);
    return found == std::end(sets) ? nullptr : &*found;
}

}  // namespace kestrune::windows
