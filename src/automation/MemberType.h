#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "automation/Value.h"

namespace kestrune::automation {

class MemberTable;

// What a parameter, a result or a property's new value is, as far as its C++ type says. Type libraries are made of it.
struct MemberType {
    enum class Kind : std::uint8_t { None, Any, Boolean, Integer, Double, Date, Text, Object };

    Kind kind = Kind::Any;
    bool by_reference = false;
    const MemberTable& (*table)() = nullptr;  // of an object's class, where the C++ type says which
};

namespace detail {

// std::optional<T> and T are declared alike: brackets say what may be left out.
template <class T>
struct Declared {
    using Type = T;
};
template <class T>
struct Declared<std::optional<T>> {
    using Type = T;
};

template <class T>
concept HasMembers = requires {
    T::members();
};

template <class T>
constexpr MemberType object_type(const std::shared_ptr<T>*) {
    if constexpr (HasMembers<T>) return {MemberType::Kind::Object, false, &T::members};
    return {MemberType::Kind::Object, false, nullptr};
}
constexpr MemberType object_type(const void*) { return {}; }

template <class P>
constexpr MemberType member_type() {
    using Kind = MemberType::Kind;
    using T = typename Declared<std::remove_cvref_t<P>>::Type;
    if constexpr (std::is_void_v<T>) return {Kind::None, false, nullptr};
    if constexpr (std::is_same_v<P, Value&>) return {Kind::Any, true, nullptr};
    if constexpr (std::is_same_v<T, bool>) return {Kind::Boolean, false, nullptr};
    if constexpr (std::is_same_v<T, std::int32_t> || std::is_enum_v<T>) return {Kind::Integer, false, nullptr};
    if constexpr (std::is_same_v<T, double>) return {Kind::Double, false, nullptr};
    if constexpr (std::is_same_v<T, Date>) return {Kind::Date, false, nullptr};
    if constexpr (std::is_convertible_v<T, std::string_view>) return {Kind::Text, false, nullptr};
    return object_type(static_cast<const T*>(nullptr));
}

template <class Parameters>
struct ParameterTypes;
template <class... P>
struct ParameterTypes<std::tuple<P...>> {
    static constexpr std::array<MemberType, sizeof...(P)> value{member_type<P>()...};
};

}  // namespace detail
}  // namespace kestrune::automation
