#include "automation/Trace.h"
#include "core/register_add_in.h"
#include "windows/Win32Presenter.h"
#include "windows/com/Unicode.h"
#include "windows/dll/Component.h"
#include "windows/dll/TypeLibrary.h"

namespace kestrune::windows {

// The two libraries are other DLLs, which CreateObject finds through COM.
void wire_component() {
    static Win32Presenter presenter;
    static const automation::Trace trace;
    core::register_add_in(presenter, trace, to_utf8(module_folder()));
}

}  // namespace kestrune::windows
