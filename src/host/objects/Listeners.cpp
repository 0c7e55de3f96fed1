#include "host/objects/Listeners.h"

#include <algorithm>
#include <utility>

namespace kestrune::host {

// Keeps its listener alive, and with it the place in the list.
class Listeners::Held : public automation::Subscription {
  public:
    explicit Held(std::shared_ptr<automation::EventListener> listener) : listener_(std::move(listener)) {}

  private:
    std::shared_ptr<automation::EventListener> listener_;
};

std::unique_ptr<automation::Subscription> Listeners::add(automation::EventListener listener) {
    std::erase_if(listeners_, [](const auto& held) { return held.expired(); });
    auto kept = std::make_shared<automation::EventListener>(std::move(listener));
    listeners_.push_back(kept);
    return std::make_unique<Held>(std::move(kept));
}

bool Listeners::any() const {
    return std::ranges::any_of(listeners_, [](const auto& held) { return !held.expired(); });
}

void Listeners::tell(std::string_view event, automation::Arguments& arguments) const {
    const auto hearing = listeners_;
    for (const auto& held : hearing) {
        const auto listener = held.lock();
        if (!listener) continue;
        try {
            (*listener)(event, arguments);
        } catch (...) {
            // A listener's failure is its own: Excel goes on with the next one and with what it was doing.
        }
    }
}

}  // namespace kestrune::host
