#include "core/register_add_in.h"

#include <memory>

#include "automation/CreateObject.h"
#include "core/iPublic.h"

namespace kestrune::core {

void register_add_in(forms::Presenter& presenter, const automation::Trace& trace,
                     const std::string& installation_folder) {
    automation::register_class("KestruneXL.iPublic",
                               [shared = std::make_shared<SharedState>(presenter, trace, installation_folder)] {
                                   return std::make_shared<iPublic>(shared);
                               });
}

}  // namespace kestrune::core
