#include "automation/CreateObject.h"
#include "host/objects/ApplicationObject.h"
#include "host/objects/HostSession.h"
#include "windows/dll/Component.h"

namespace kestrune::windows {

// The embedded Excel as a COM server, for tests. It is one Application a process, as Excel is, and lives as long as the
// DLL is loaded: clients may let go of its objects in any order.
void wire_component() {
    static host::HostSession session;
    automation::register_class("KestruneHost.Application", [] { return host::make_application(session); });
}

}  // namespace kestrune::windows
