#pragma once

#include <memory>
#include <string>

#include "automation/Trace.h"
#include "core/bridges/SharedState.h"
#include "forms/Presenter.h"

namespace kestrune::core {

// Lets CreateObject("KestruneXL.iPublic") make the add-in's entry object. All objects made share one state, as in
// one loaded component. The presenter and the trace outlive every object made. The installation folder is the
// component's own; examples and lessons lie in it.
void register_add_in(forms::Presenter& presenter, const automation::Trace& trace,
                     const std::string& installation_folder = {});
// The same for a program that looks into the state itself.
void register_add_in(std::shared_ptr<SharedState> shared);

}  // namespace kestrune::core
