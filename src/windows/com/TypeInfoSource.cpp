#include "windows/com/TypeInfoSource.h"

#include "windows/com/MemberTypeInfo.h"
#include "windows/com/TypeName.h"

namespace kestrune::windows {
namespace {

TypeInfoSource& source_in_use() noexcept {
    static constinit TypeInfoSource source = nullptr;
    return source;
}

}  // namespace

void use_type_library(TypeInfoSource source) noexcept { source_in_use() = source; }

ComPtr<ITypeInfo> library_type_info(std::string_view class_name) {
    return source_in_use() ? source_in_use()(class_name) : nullptr;
}

ComPtr<ITypeInfo> library_class_info(std::string_view class_name) {
    const ComPtr<ITypeInfo> interface_info = library_type_info(class_name);
    ComPtr<ITypeLib> library;
    UINT index = 0;
    if (!interface_info || FAILED(interface_info->GetContainingTypeLib(&library, &index))) return nullptr;
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        TYPEKIND kind = TKIND_MAX;
        ComPtr<ITypeInfo> info;
        if (FAILED(library->GetTypeInfoType(i, &kind)) || kind != TKIND_COCLASS) continue;
        if (SUCCEEDED(library->GetTypeInfo(i, &info)) && type_info_name(*info.Get()) == class_name) return info;
    }
    return nullptr;
}

ComPtr<ITypeInfo> type_info_of(const automation::ObjectRef& object) {
    auto info = library_type_info(object->type_name());
    return info ? info : member_type_info(object);
}

}  // namespace kestrune::windows
