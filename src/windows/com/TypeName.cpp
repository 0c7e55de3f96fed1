#include "windows/com/TypeName.h"

#include <ocidl.h>

#include "windows/com/ComPtr.h"
#include "windows/com/Unicode.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {

std::string type_info_name(ITypeInfo& info) {
    BSTR name = nullptr;
    if (FAILED(info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr))) return {};
    std::string result = to_utf8({name, SysStringLen(name)});
    SysFreeString(name);
    return result;
}

std::string read_type_name(IDispatch& object) {
    ComPtr<ITypeInfo> type;
    ComPtr<IProvideClassInfo> classes;
    if (FAILED(object.QueryInterface(IID_PPV_ARGS(&classes))) || FAILED(classes->GetClassInfo(&type)) || !type) {
        if (FAILED(object.GetTypeInfo(0, lcid, &type)) || !type) return "Object";
    }
    const std::string name = type_info_name(*type.Get());
    if (name.empty()) return "Object";
    return name.starts_with('_') ? name.substr(1) : name;
}

}  // namespace kestrune::windows
