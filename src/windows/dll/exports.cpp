#include <windows.h>

#include <objbase.h>
#include <olectl.h>

#include <mutex>
#include <string_view>

#include "automation/CreateObject.h"
#include "windows/com/ClassFactory.h"
#include "windows/com/ComClasses.h"
#include "windows/com/Failure.h"
#include "windows/com/Module.h"
#include "windows/com/TypeInfoSource.h"
#include "windows/com/Unicode.h"
#include "windows/dll/Component.h"
#include "windows/dll/Registration.h"
#include "windows/dll/TypeLibrary.h"

// What COM and regsvr32 call in each of our DLLs.

namespace kestrune::windows {
namespace {

void wire_once() {
    static std::once_flag wired;
    std::call_once(wired, [] {
        use_com_classes();
        use_type_library(&embedded_type_info);
        wire_component();
    });
}

HRESULT class_object(REFCLSID class_id, REFIID interface_id, void** object) {
    for (const CreatableClass& c : library_facts().classes) {
        if (c.id != class_id) continue;
        wire_once();
        return get_class_object([prog_id = to_utf8(c.prog_id)] { return automation::CreateObject(prog_id); },
                                interface_id, object);
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

}  // namespace
}  // namespace kestrune::windows

using namespace kestrune::windows;

STDAPI DllGetClassObject(REFCLSID class_id, REFIID interface_id, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    return guarded([&] { return class_object(class_id, interface_id, object); });
}

STDAPI DllCanUnloadNow() { return Module::can_unload() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return register_module(Scope::Machine); }

STDAPI DllUnregisterServer() { return unregister_module(Scope::Machine); }

// regsvr32 /n /i:user registers for the person who runs it, /i alone for the machine.
STDAPI DllInstall(BOOL install, LPCWSTR command_line) {
    const std::wstring_view wanted = command_line ? command_line : L"";
    if (!wanted.empty() && wanted != L"user" && wanted != L"machine") return E_INVALIDARG;
    const Scope scope = wanted == L"user" ? Scope::User : Scope::Machine;
    return install ? register_module(scope) : unregister_module(scope);
}
