#include <windows.h>

#include <objbase.h>

#include <stdexcept>

#include "contract_application/Excel.h"
#include "windows/com/ComClasses.h"
#include "windows/com/ComClient.h"
#include "windows/dll/Dll.h"

namespace kestrune::contract {
namespace {

// The test host as a class that COM knows, for as long as the tests run.
class Host {
  public:
    Host() : initialized_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host() {
        if (SUCCEEDED(initialized_)) CoUninitialize();
    }

  private:
    HRESULT initialized_;
    windows::Dll dll_{windows::dll_path("KestruneHost")};
    windows::Registered registered_{dll_};
};

}  // namespace

automation::ObjectRef new_excel() {
    static const Host host;
    const automation::ObjectRef application = windows::create_com_object("KestruneHost.Application");
    // An object of this very module would come back as itself, and the suite would test nothing but the host again.
    if (!dynamic_cast<windows::ComClient*>(application.get())) throw std::logic_error("Excel is not behind COM");
    return application;
}

}  // namespace kestrune::contract
