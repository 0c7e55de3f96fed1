#include "automation/Trace.h"
#include "brxllib/register_library.h"
#include "windows/Swatch.h"
#include "windows/Win32Presenter.h"
#include "windows/dll/Component.h"

namespace kestrune::windows {

void wire_component() {
    static Win32Presenter presenter;
    static const automation::Trace trace;
    brxllib::register_library(trace, {.presenter = &presenter, .swatch = swatch});
}

}  // namespace kestrune::windows
