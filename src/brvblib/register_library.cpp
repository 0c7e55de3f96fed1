#include "brvblib/register_library.h"

#include <memory>
#include <utility>

#include "automation/CreateObject.h"
#include "brvblib/iPublic.h"

namespace kestrune::brvblib {

void register_library(Services services) {
    automation::register_class("BRVBLib.iPublic", [services = std::move(services)] {
        return std::make_shared<iPublic>(std::make_shared<Library>(Library{services}));
    });
}

}  // namespace kestrune::brvblib
