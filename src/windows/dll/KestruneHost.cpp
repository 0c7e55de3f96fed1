#include <memory>
#include <span>
#include <utility>

#include "automation/Conversion.h"
#include "automation/CreateObject.h"
#include "host/objects/HostSession.h"
#include "host/objects/Refusal.h"
#include "windows/dll/Component.h"

namespace kestrune::windows {
namespace {

using automation::ObjectRef;
using automation::Value;

// Application.Run "TestHost.AddMacro", "Book.xls", "Module.Macro", Function: what VBA would do, a client's function
// does, which is an object that is called by its default member.
Value add_macro(host::HostSession& session, std::span<const Value> arguments) {
    if (arguments.size() != 3) host::refuse("TestHost.AddMacro", "takes a workbook, a macro and a function");
    const ObjectRef function = automation::to_object(arguments[2]);
    session.macros.add(automation::to_text(arguments[0]), automation::to_text(arguments[1]),
                       [function](std::span<const Value> given) {
                           automation::Arguments handed;
                           handed.positional.assign(given.begin(), given.end());
                           return function->invoke({}, automation::Call::Method, handed);
                       });
    return {};
}

// The embedded Excel as a COM server, for tests. Each Application is an Excel of its own, as CreateObject starts a
// process of its own for each with Excel; its session lives as long as one of its objects is held.
ObjectRef new_application() {
    const auto session = std::make_shared<host::HostSession>();
    session->macros.add({}, "TestHost.AddMacro",
                        [&session = *session](std::span<const Value> given) { return add_macro(session, given); });
    return host::make_application(*session);
}

}  // namespace

void wire_component() { automation::register_class("KestruneHost.Application", new_application); }

}  // namespace kestrune::windows
