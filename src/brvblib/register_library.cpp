#include "brvblib/register_library.h"

#include <memory>
#include <utility>

#include "automation/CreateObject.h"
#include "brvblib/iPublic.h"

namespace kestrune::brvblib {

void register_library(Services services) {
    // Hot keys are one for all libraries of a process, since Excel has one keyboard; they end with the last of them.
    automation::register_class(
        "BRVBLib.iPublic", [services = std::move(services), shared = std::make_shared<std::weak_ptr<HotKeys>>()] {
            std::shared_ptr<HotKeys> hot_keys = shared->lock();
            if (!hot_keys) *shared = hot_keys = std::make_shared<HotKeys>(services);
            return std::make_shared<iPublic>(std::make_shared<Library>(services, std::move(hot_keys)));
        });
}

}  // namespace kestrune::brvblib
