#pragma once

#include <windows.h>

#include <oaidl.h>

#include <memory>
#include <string_view>

#include "automation/Events.h"

namespace kestrune::windows {

// Connects a listener to an object's connection point for one of the known classes of events. Fails with
// member-not-found when the object has none.
std::unique_ptr<automation::Subscription> connect(IDispatch& source, std::string_view class_name,
                                                  automation::EventListener listener);

// Tells a client's sink of an event. Truth values go by reference, as Excel's Cancel does; what the sink answers stays
// its own affair.
void tell(IDispatch& sink, DISPID event, automation::Arguments& arguments);

}  // namespace kestrune::windows
