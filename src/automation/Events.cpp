#include "automation/Events.h"

#include <utility>

#include "automation/AutomationError.h"

namespace kestrune::automation {

std::unique_ptr<Subscription> subscribe(const ObjectRef& source, EventListener listener) {
    if (!source) throw AutomationError(hresult::object_required, "events", "an object is required");
    auto* raises = dynamic_cast<EventSource*>(source.get());
    if (!raises) throw AutomationError(hresult::member_not_found, source->type_name(), "raises no events");
    return raises->subscribe(std::move(listener));
}

}  // namespace kestrune::automation
