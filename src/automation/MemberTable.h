#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "automation/Conversion.h"
#include "automation/MemberType.h"
#include "automation/Object.h"
#include "automation/Text.h"

namespace kestrune::automation {

// A class that is served to others declares its members once, as a table of rows:
//
//   const MemberTable& Window::members() {
//       static constexpr auto rows = member_rows(
//           property<&Window::zoom, &Window::set_zoom>("Zoom", 1),
//           method<&Window::scroll>("SmallScroll", 2, "[Down], [Up], [ToRight], [ToLeft]"));
//       static constexpr MemberTable table("Window", rows);
//       return table;
//   }
//
// Arity and conversions are deduced from the functions. A bracketed parameter may be left out and is
// declared Value (then Missing) or std::optional<T>. A parameter declared Value& is by reference.
// The row of id 0 is the default member.

using Thunk = Value (*)(Object& self, std::span<Value> arguments);

struct Member {
    std::string_view name;
    std::int32_t id = 0;
    bool is_method = false;
    std::string_view parameters;  // names parted by ", ", optional ones in brackets
    std::uint8_t parameter_count = 0;
    std::uint8_t required_count = 0;
    Thunk run = nullptr;  // the method or the property's reading
    Thunk set = nullptr;  // the property's writing; takes the parameters and the new value

    // The functions' own types; parameter_types is empty where a row is made without a function's signature.
    std::span<const MemberType> parameter_types;
    MemberType result;     // of the method or the property's reading
    MemberType new_value;  // that the property's writing takes last
};

namespace detail {

template <class F>
struct FunctionShape;
template <class C, class R, class... A>
struct FunctionShape<R (C::*)(A...)> {
    using Class = C;
    using Result = R;
    using Parameters = std::tuple<A...>;
    static constexpr std::size_t arity = sizeof...(A);
};
template <class C, class R, class... A>
struct FunctionShape<R (C::*)(A...) const> : FunctionShape<R (C::*)(A...)> {};

// An argument that does not convert to its parameter's type; the shared invoke puts the member's name to it.
struct WrongArgument {
    std::size_t position;
    HResult code;
    std::string description;
};

template <class T>
T convert_argument(const Value& argument, std::size_t position) {
    try {
        return convert<T>(argument);
    } catch (const AutomationError& error) {
        throw WrongArgument{position, error.code(), error.description()};
    }
}

template <class P>
decltype(auto) pass(Value& argument, std::size_t position) {
    if constexpr (std::is_same_v<P, Value&> || std::is_same_v<P, const Value&>) {
        return static_cast<Value&>(argument);
    } else {
        return convert_argument<std::remove_cvref_t<P>>(argument, position);
    }
}

template <auto F, std::size_t... I>
Value run_with(Object& self, [[maybe_unused]] std::span<Value> arguments, std::index_sequence<I...>) {
    using Shape = FunctionShape<decltype(F)>;
    auto& object = static_cast<typename Shape::Class&>(self);
    if constexpr (std::is_void_v<typename Shape::Result>) {
        (object.*F)(pass<std::tuple_element_t<I, typename Shape::Parameters>>(arguments[I], I)...);
        return {};
    } else {
        return Value((object.*F)(pass<std::tuple_element_t<I, typename Shape::Parameters>>(arguments[I], I)...));
    }
}

template <auto F>
Value thunk(Object& self, std::span<Value> arguments) {
    return run_with<F>(self, arguments, std::make_index_sequence<FunctionShape<decltype(F)>::arity>{});
}

// The next parameter of a list, taken off its front; brackets are stripped.
struct Parameter {
    std::string_view name;
    bool optional = false;
};
constexpr Parameter take_parameter(std::string_view& list) {
    const std::size_t comma = list.find(',');
    std::string_view name = trimmed(list.substr(0, comma));
    list = comma == std::string_view::npos ? std::string_view{} : list.substr(comma + 1);
    const bool optional = name.size() > 2 && name.front() == '[' && name.back() == ']';
    if (optional) name = name.substr(1, name.size() - 2);
    return {name, optional};
}

// Called while a table is made at compile time, where the throw does not compile. Constexpr rather than consteval,
// as all that the row functions below call: clang before 17 refuses consteval calls from consteval templates.
constexpr void check(bool holds) {
    if (!holds) throw "a member table row is wrong";
}

template <class F>
constexpr Member describe(std::string_view name, std::int32_t id, std::string_view parameters) {
    Member member;
    member.name = name;
    member.id = id;
    member.parameters = parameters;
    bool optional_seen = false;
    while (!parameters.empty()) {
        const Parameter parameter = take_parameter(parameters);
        check(!parameter.name.empty());
        check(parameter.optional || !optional_seen);
        optional_seen = parameter.optional;
        ++member.parameter_count;
        if (!parameter.optional) ++member.required_count;
    }
    check(FunctionShape<F>::arity == member.parameter_count);
    member.parameter_types = ParameterTypes<typename FunctionShape<F>::Parameters>::value;
    member.result = member_type<typename FunctionShape<F>::Result>();
    return member;
}

}  // namespace detail

template <auto Function>
consteval Member method(std::string_view name, std::int32_t id, std::string_view parameters = {}) {
    Member member = detail::describe<decltype(Function)>(name, id, parameters);
    member.is_method = true;
    member.run = &detail::thunk<Function>;
    return member;
}

template <auto Getter>
consteval Member read_only(std::string_view name, std::int32_t id, std::string_view parameters = {}) {
    Member member = detail::describe<decltype(Getter)>(name, id, parameters);
    member.run = &detail::thunk<Getter>;
    return member;
}

template <auto Getter, auto Setter>
consteval Member property(std::string_view name, std::int32_t id, std::string_view parameters = {}) {
    Member member = detail::describe<decltype(Getter)>(name, id, parameters);
    member.run = &detail::thunk<Getter>;
    using Written = typename detail::FunctionShape<decltype(Setter)>::Parameters;
    detail::check(std::tuple_size_v<Written> == member.parameter_count + 1U);
    member.set = &detail::thunk<Setter>;
    member.new_value = detail::ParameterTypes<Written>::value.back();
    return member;
}

// Rows of a table, in the order of their ids; an order broken or a name twice does not compile.
template <class... Rows>
consteval auto member_rows(Rows... rows) {
    const std::array<Member, sizeof...(Rows)> table{rows...};
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (i > 0) detail::check(table[i - 1].id < table[i].id);
        for (std::size_t j = 0; j < i; ++j) detail::check(!same_text(table[i].name, table[j].name));
    }
    return table;
}

class MemberTable {
  public:
    constexpr MemberTable(std::string_view class_name, std::span<const Member> rows)
        : class_name_(class_name), rows_(rows) {}

    [[nodiscard]] std::string_view class_name() const { return class_name_; }
    [[nodiscard]] std::span<const Member> rows() const { return rows_; }

    // By name, whatever its case; the empty name finds the default member. Null when there is none.
    [[nodiscard]] const Member* find(std::string_view name) const;
    [[nodiscard]] const Member* find(std::int32_t id) const;

    // The one invoke that all served classes share: look-up, arity, named and missing arguments,
    // conversion, errors. Arguments given to a property that takes none go to the default member
    // of the object it answers, so that Borders(7) reads as in Visual Basic.
    Value invoke(Object& self, std::string_view member, Call kind, Arguments& arguments) const;

  private:
    std::string_view class_name_;
    std::span<const Member> rows_;
};

// An object whose class has a member table: Derived::members().
template <class Derived>
class Served : public Object {
  public:
    Value invoke(std::string_view member, Call kind, Arguments& arguments) override {
        return Derived::members().invoke(*this, member, kind, arguments);
    }
    [[nodiscard]] std::string_view type_name() const override { return Derived::members().class_name(); }
    [[nodiscard]] const MemberTable* member_table() const override { return &Derived::members(); }
};

}  // namespace kestrune::automation
