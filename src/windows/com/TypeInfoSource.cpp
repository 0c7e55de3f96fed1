#include "windows/com/TypeInfoSource.h"

#include "windows/com/MemberTypeInfo.h"

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

ComPtr<ITypeInfo> type_info_of(const automation::ObjectRef& object) {
    auto info = library_type_info(object->type_name());
    return info ? info : member_type_info(object);
}

}  // namespace kestrune::windows
