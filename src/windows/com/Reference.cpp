#include "windows/com/Reference.h"

#include "automation/AutomationError.h"
#include "windows/com/Failure.h"
#include "windows/com/Payload.h"
#include "windows/com/SafeArray.h"

namespace kestrune::windows {

void coerce(Variant& variant, VARTYPE type) {
    if (variant.type() == type) return;
    const HRESULT result = VariantChangeTypeEx(&variant.raw(), &variant.raw(), lcid, 0, type);
    if (FAILED(result)) {
        throw automation::AutomationError(result, "conversion", "the value does not convert to the reference's type");
    }
}

void assign(const VARIANT& reference, const automation::Value& value) {
    const VARIANT* at = &reference;
    while (V_VT(at) == (VT_BYREF | VT_VARIANT)) {
        VARIANT* target = V_VARIANTREF(at);
        if (!V_ISBYREF(target)) {
            Variant fresh = to_variant(value);
            VARIANT before = *target;
            *target = fresh.release();
            VariantClear(&before);
            return;
        }
        at = target;
    }
    const auto type = static_cast<VARTYPE>(V_VT(at) & ~VT_BYREF);
    if (type & VT_ARRAY) {
        const automation::Array* array = value.array();
        if (!array) {
            throw automation::AutomationError(automation::hresult::type_mismatch, "conversion",
                                              "the reference is to an array");
        }
        assign(*V_ARRAYREF(at), static_cast<VARTYPE>(type & VT_TYPEMASK), *array);
        return;
    }
    Variant fresh = to_variant(value);
    coerce(fresh, type);
    move_payload(fresh.raw(), type, V_BYREF(at));
}

}  // namespace kestrune::windows
