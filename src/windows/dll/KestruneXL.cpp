#include "automation/Trace.h"
#include "core/register_add_in.h"
#include "windows/Win32Presenter.h"
#include "windows/dll/Component.h"

namespace kestrune::windows {

// The two libraries are other DLLs, which CreateObject finds through COM.
void wire_component() {
    static Win32Presenter presenter;
    static const automation::Trace trace;
    core::register_add_in(presenter, trace);
}

}  // namespace kestrune::windows
