#pragma once

#include <windows.h>

#include <oaidl.h>

#include <span>
#include <string_view>

#include "automation/Text.h"

namespace kestrune::windows {

struct Event {
    std::string_view name;
    DISPID id;
};

// The events of one class, as its type library numbers them.
struct EventSet {
    std::string_view class_name;
    IID source;  // the interface that a listener implements
    std::span<const Event> events;

    [[nodiscard]] const Event* find(std::string_view name) const;
    [[nodiscard]] const Event* find(DISPID id) const;
};

// All classes whose events are known; Excel's Application is the one that the product listens to.
std::span<const EventSet> event_sets();

// The events of a class by its name; null when it is not known to raise any.
const EventSet* events_of(std::string_view class_name);

}  // namespace kestrune::windows
