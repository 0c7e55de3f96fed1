#include <memory>

#include "automation/CreateObject.h"
#include "host/objects/ApplicationObject.h"
#include "host/objects/HostSession.h"
#include "windows/dll/Component.h"

namespace kestrune::windows {

// The embedded Excel as a COM server, for tests. Each Application is an Excel of its own, as CreateObject starts a
// process of its own for each with Excel; its session lives as long as one of its objects is held.
void wire_component() {
    automation::register_class("KestruneHost.Application",
                               [] { return host::make_application(*std::make_shared<host::HostSession>()); });
}

}  // namespace kestrune::windows
