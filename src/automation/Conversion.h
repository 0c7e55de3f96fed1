#pragma once

#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include "automation/AutomationError.h"
#include "automation/Object.h"
#include "automation/Value.h"

namespace kestrune::automation {

// Conversions between kinds, by OLE Automation's rules (VariantChangeType) under LCID 1033.
// What does not convert fails with DISP_E_TYPEMISMATCH, what does not fit with DISP_E_OVERFLOW.
bool to_boolean(const Value& value);          // numbers by zero or not; "True", "False" and number texts
std::int32_t to_integer(const Value& value);  // halves to the even neighbour; True is -1
double to_double(const Value& value);         // True is -1, a Date its serial
std::string to_text(const Value& value);      // numbers with up to 15 digits; "True", "False"
ObjectRef to_object(const Value& value);      // Nothing stays a null reference

// An object that must be there: DISP object-required (424) for Nothing and for anything that is not an object.
Object& to_required_object(const Value& value);

// The conversions by the C++ type wanted; std::optional takes a Missing argument.
template <class T>
struct Convert;

template <>
struct Convert<Value> {
    static Value from(const Value& v) { return v; }
};
template <>
struct Convert<bool> {
    static bool from(const Value& v) { return to_boolean(v); }
};
template <>
struct Convert<std::int32_t> {
    static std::int32_t from(const Value& v) { return to_integer(v); }
};
template <>
struct Convert<double> {
    static double from(const Value& v) { return to_double(v); }
};
template <>
struct Convert<std::string> {
    static std::string from(const Value& v) { return to_text(v); }
};
template <>
struct Convert<ObjectRef> {
    static ObjectRef from(const Value& v) { return to_object(v); }
};

template <class T>
requires std::is_base_of_v<Object, T>
struct Convert<std::shared_ptr<T>> {
    static std::shared_ptr<T> from(const Value& v) {
        const ObjectRef object = to_object(v);
        auto typed = std::dynamic_pointer_cast<T>(object);
        if (object && !typed)
            throw AutomationError(hresult::type_mismatch, object->type_name(), "is an object of another class");
        return typed;
    }
};

template <class T>
struct Convert<std::optional<T>> {
    static std::optional<T> from(const Value& v) {
        if (v.is(Value::Kind::Missing)) return std::nullopt;
        return Convert<T>::from(v);
    }
};

template <class T>
T convert(const Value& value) {
    return Convert<T>::from(value);
}

}  // namespace kestrune::automation
