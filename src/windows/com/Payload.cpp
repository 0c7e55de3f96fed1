#include "windows/com/Payload.h"

#include <fmt/format.h>

#include <cstring>

#include "automation/AutomationError.h"

namespace kestrune::windows {

std::size_t payload_size(VARTYPE type) {
    if (type & VT_ARRAY) return sizeof(SAFEARRAY*);
    switch (type) {
        case VT_I1:
        case VT_UI1:
            return 1;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL:
            return 2;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_R4:
        case VT_ERROR:
            return 4;
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_DATE:
        case VT_CY:
            return 8;
        case VT_BSTR:
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return sizeof(void*);
        case VT_DECIMAL:
            return sizeof(DECIMAL);
        default:
            throw automation::AutomationError(automation::hresult::type_mismatch, "conversion",
                                              fmt::format("values of type {} are not supported", type));
    }
}

VARIANT dereferenced(const VARIANT& reference) { return view_of(V_VT(&reference) & ~VT_BYREF, V_BYREF(&reference)); }

VARIANT view_of(VARTYPE type, const void* payload) {
    const std::size_t size = payload_size(type);
    if (!payload) {
        throw automation::AutomationError(automation::hresult::type_mismatch, "conversion",
                                          "a reference refers to nothing");
    }
    VARIANT view;
    VariantInit(&view);
    // A decimal lies over the whole VARIANT, its first two bytes where the type goes.
    std::memcpy(type == VT_DECIMAL ? static_cast<void*>(&view) : &V_I8(&view), payload, size);
    V_VT(&view) = type;
    return view;
}

void move_payload(VARIANT& from, VARTYPE type, void* to) {
    VARIANT before = view_of(type, to);
    const std::size_t size = payload_size(type);
    std::memcpy(to, type == VT_DECIMAL ? static_cast<const void*>(&from) : &V_I8(&from), size);
    V_VT(&from) = VT_EMPTY;
    VariantClear(&before);
}

}  // namespace kestrune::windows
