#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "automation/Events.h"

namespace kestrune::host {

// Who hears the application's events, in the order in which they began to. Listeners may come and go while an event
// is told: one that is gone hears nothing more, one that came hears from the next event on.
class Listeners {
  public:
    [[nodiscard]] std::unique_ptr<automation::Subscription> add(automation::EventListener listener);
    [[nodiscard]] bool any() const;
    void tell(std::string_view event, automation::Arguments& arguments) const;

  private:
    class Held;

    std::vector<std::weak_ptr<automation::EventListener>> listeners_;
};

}  // namespace kestrune::host
