#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "automation/Object.h"

namespace kestrune::automation {

// Is told of an event by its name ("SheetChange") and arguments. What it throws is the listener's own affair and
// stops neither the source nor other listeners.
using EventListener = std::function<void(std::string_view event, Arguments& arguments)>;

// Stands for a listener that hears; once it is gone, the listener hears nothing any more.
class Subscription {
  public:
    Subscription() = default;
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    virtual ~Subscription() = default;
};

// An object that raises events, as Excel's Application does. On Windows, COM's connection points.
class EventSource {
  public:
    virtual ~EventSource() = default;
    virtual std::unique_ptr<Subscription> subscribe(EventListener listener) = 0;
};

// Lets a listener hear an object's events. Fails with object-required for Nothing, with member-not-found for an object
// that raises none.
std::unique_ptr<Subscription> subscribe(const ObjectRef& source, EventListener listener);

}  // namespace kestrune::automation
