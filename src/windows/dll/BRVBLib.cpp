#include "automation/Trace.h"
#include "brvblib/register_library.h"
#include "windows/Win32Presenter.h"
#include "windows/com/Unicode.h"
#include "windows/dll/Component.h"
#include "windows/dll/TypeLibrary.h"
#include "windows/services/services.h"

namespace kestrune::windows {

void wire_component() {
    static Win32Presenter presenter;
    static const automation::Trace trace;
    brvblib::register_library(services(trace, presenter, to_utf8(module_folder())));
}

}  // namespace kestrune::windows
