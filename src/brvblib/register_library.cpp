#include "brvblib/register_library.h"

#include <memory>
#include <utility>

#include "automation/CreateObject.h"
#include "brvblib/iPublic.h"

namespace kestrune::brvblib {

void register_library(const automation::Trace& trace, ProductSettings settings) {
    automation::register_class("BRVBLib.iPublic", [&trace, settings = std::move(settings)] {
        return std::make_shared<iPublic>(std::make_shared<Library>(Library{trace, settings, {}, {}}));
    });
}

}  // namespace kestrune::brvblib
