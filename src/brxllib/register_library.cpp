#include "brxllib/register_library.h"

#include <memory>

#include "automation/CreateObject.h"
#include "brxllib/iPublic.h"

namespace kestrune::brxllib {

void register_library(const automation::Trace& trace, const Surroundings& around) {
    automation::register_class("BRXLLib.iPublic", [&trace, around] {
        return std::make_shared<iPublic>(std::make_shared<Library>(Library{trace, {}, {}, around}));
    });
}

}  // namespace kestrune::brxllib
