#include "core/register_add_in.h"

#include <utility>

#include "automation/CreateObject.h"
#include "core/iPublic.h"

namespace kestrune::core {

void register_add_in(forms::Presenter& presenter, const automation::Trace& trace,
                     const std::string& installation_folder) {
    register_add_in(std::make_shared<SharedState>(presenter, trace, installation_folder));
}

void register_add_in(std::shared_ptr<SharedState> shared) {
    automation::register_class("KestruneXL.iPublic",
                               [shared = std::move(shared)] { return std::make_shared<iPublic>(shared); });
}

}  // namespace kestrune::core
