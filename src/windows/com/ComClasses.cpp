#include "windows/com/ComClasses.h"

#include <windows.h>

#include <objbase.h>

#include "automation/CreateObject.h"
#include "windows/com/Failure.h"
#include "windows/com/Objects.h"
#include "windows/com/Unicode.h"

namespace kestrune::windows {

automation::ObjectRef create_com_object(std::string_view prog_id) {
    CLSID class_id;
    if (FAILED(CLSIDFromProgID(to_utf16(prog_id).data(), &class_id))) {
        throw automation::AutomationError(automation::hresult::class_not_registered, prog_id,
                                          "the class is not registered");
    }
    ComPtr<IDispatch> object;
    check(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_PPV_ARGS(&object)),
          prog_id);
    return object_of(object.Get());
}

void use_com_classes() { automation::use_class_source(create_com_object); }

}  // namespace kestrune::windows
