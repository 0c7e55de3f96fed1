#include "windows/com/TypeName.h"

#include <ocidl.h>

#include "windows/com/ComPtr.h"
#include "windows/com/Unicode.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {

std::string read_type_name(IDispatch& object) {
    ComPtr<ITypeInfo> type;
    ComPtr<IProvideClassInfo> classes;
    if (FAILED(object.QueryInterface(IID_PPV_ARGS(&classes))) || FAILED(classes->GetClassInfo(&type)) || !type) {
        if (FAILED(object.GetTypeInfo(0, lcid, &type)) || !type) return "Object";
    }
    BSTR name = nullptr;
    if (FAILED(type->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr)) || !name) return "Object";
    std::string result = to_utf8({name, SysStringLen(name)});
    SysFreeString(name);
    return result.starts_with('_') ? result.substr(1) : result;
}

}  // namespace kestrune::windows
