#include "windows/com/Variant.h"

#include <fmt/format.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <type_traits>

#include "automation/AutomationError.h"
#include "windows/com/Enumerators.h"
#include "windows/com/Failure.h"
#include "windows/com/Objects.h"
#include "windows/com/Payload.h"
#include "windows/com/SafeArray.h"
#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

using automation::Date;
using automation::Empty;
using automation::Error;
using automation::Missing;
using automation::Null;
using automation::ObjectRef;
using automation::Value;

// References to references are not legal, yet harmless up to a point.
constexpr int deepest_reference = 4;

[[noreturn]] void refuse(VARTYPE type) {
    throw automation::AutomationError(automation::hresult::type_mismatch, "conversion",
                                      fmt::format("values of type {} are not supported", type));
}

template <class Number>
Value whole(Number number) {
    if (std::in_range<std::int32_t>(number)) return static_cast<std::int32_t>(number);
    return static_cast<double>(number);
}

Value decimal(DECIMAL number) {
    double result = 0;
    check(VarR8FromDec(&number, &result), "conversion");
    return result;
}

Value from_direct(const VARIANT& v) {
    if (V_ISARRAY(&v)) return to_array(V_ARRAY(&v));
    switch (V_VT(&v)) {
        case VT_EMPTY:
            return Empty{};
        case VT_NULL:
            return Null{};
        case VT_BOOL:
            return V_BOOL(&v) != VARIANT_FALSE;
        case VT_I1:
            return whole(static_cast<signed char>(V_I1(&v)));
        case VT_UI1:
            return whole(V_UI1(&v));
        case VT_I2:
            return whole(V_I2(&v));
        case VT_UI2:
            return whole(V_UI2(&v));
        case VT_I4:
        case VT_INT:
            return whole(V_I4(&v));
        case VT_UI4:
        case VT_UINT:
            return whole(V_UI4(&v));
        case VT_I8:
            return whole(V_I8(&v));
        case VT_UI8:
            return whole(V_UI8(&v));
        case VT_R4:
            return static_cast<double>(V_R4(&v));
        case VT_R8:
            return V_R8(&v);
        case VT_CY:
            return static_cast<double>(V_CY(&v).int64) / 10000;
        case VT_DECIMAL:
            return decimal(V_DECIMAL(&v));
        case VT_DATE:
            return Date{V_DATE(&v)};
        case VT_ERROR:
            if (V_ERROR(&v) == DISP_E_PARAMNOTFOUND) return Missing{};
            return Error{V_ERROR(&v)};
        case VT_BSTR:
            return to_utf8({V_BSTR(&v), SysStringLen(V_BSTR(&v))});
        case VT_DISPATCH:
            return object_of(V_DISPATCH(&v));
        case VT_UNKNOWN:
            return object_of(V_UNKNOWN(&v));
        default:
            refuse(V_VT(&v));
    }
}

struct Writer {
    VARIANT& v;

    void operator()(Empty) const {}
    void operator()(Null) const { V_VT(&v) = VT_NULL; }
    void operator()(Missing) const { (*this)(Error{DISP_E_PARAMNOTFOUND}); }
    void operator()(bool truth) const {
        V_VT(&v) = VT_BOOL;
        V_BOOL(&v) = truth ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(std::int32_t number) const {
        V_VT(&v) = VT_I4;
        V_I4(&v) = number;
    }
    void operator()(double number) const {
        V_VT(&v) = VT_R8;
        V_R8(&v) = number;
    }
    void operator()(Date date) const {
        V_VT(&v) = VT_DATE;
        V_DATE(&v) = date.serial;
    }
    void operator()(Error error) const {
        V_VT(&v) = VT_ERROR;
        V_ERROR(&v) = error.code;
    }
    void operator()(const std::string& text) const {
        V_BSTR(&v) = to_bstr(text);
        V_VT(&v) = VT_BSTR;
    }
    void operator()(const ObjectRef& object) const {
        if (auto items = std::dynamic_pointer_cast<automation::Enumeration>(object)) {
            V_UNKNOWN(&v) = enumerator_of(std::move(items)).Detach();
            V_VT(&v) = VT_UNKNOWN;
            return;
        }
        V_DISPATCH(&v) = dispatch_of(object).Detach();
        V_VT(&v) = VT_DISPATCH;
    }
    void operator()(const std::shared_ptr<const automation::Array>& array) const {
        V_ARRAY(&v) = to_safe_array(*array).release();
        V_VT(&v) = VT_ARRAY | VT_VARIANT;
    }
};

}  // namespace

Value to_value(const VARIANT& variant) {
    const VARIANT* v = &variant;
    for (int depth = 0; V_VT(v) == (VT_BYREF | VT_VARIANT); ++depth) {
        if (depth == deepest_reference || !V_VARIANTREF(v)) refuse(V_VT(v));
        v = V_VARIANTREF(v);
    }
    return V_ISBYREF(v) ? from_direct(dereferenced(*v)) : from_direct(*v);
}

Variant to_variant(const Value& value) {
    Variant result;
    value.visit(Writer{result.raw()});
    return result;
}

BSTR to_bstr(std::string_view text) {
    const std::wstring wide = to_utf16(text);
    const BSTR result = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (!result) throw std::bad_alloc();
    return result;
}

}  // namespace kestrune::windows
