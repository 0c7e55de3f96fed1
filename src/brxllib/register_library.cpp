#include "brxllib/register_library.h"

#include <memory>

#include "automation/CreateObject.h"
#include "brxllib/iPublic.h"

namespace kestrune::brxllib {

void register_library(const automation::Trace& trace) {
    automation::register_class("BRXLLib.iPublic", [&trace] {
        return std::make_shared<iPublic>(std::make_shared<Library>(Library{trace, {}, {}}));
    });
}

}  // namespace kestrune::brxllib
