#pragma once

#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

#include "automation/Conversion.h"
#include "automation/Object.h"

namespace kestrune::excel {

using automation::ObjectRef;
using automation::Value;

enum class Access { method, get, get_put };

// One member of an Excel class as Excel's reference lists it.
struct MemberRow {
    std::string_view name;
    Access access;
    std::string_view parameters = {};  // in order, parted by blanks; '!' marks a required one
};

namespace detail {

struct ParameterCounts {
    std::size_t required = 0;
    std::size_t all = 0;
};
constexpr ParameterCounts count_parameters(std::string_view parameters) {
    ParameterCounts counts;
    counts.all = parameters.empty() ? 0 : 1;
    for (const char c : parameters) {
        if (c == ' ') ++counts.all;
        if (c == '!') ++counts.required;
    }
    return counts;
}

// The name of a member of Class that is called as wanted with so many arguments. A member that the
// class does not list, a method read as a property, a write to what cannot be written and a wrong
// number of arguments do not compile.
template <class Class, Access wanted, std::size_t arguments>
struct Checked {
    std::string_view name;

    consteval Checked(const char* member) : name(member) {
        for (const MemberRow& row : Class::members) {
            if (row.name != name) continue;
            const bool callable = row.access == wanted || (wanted == Access::get && row.access == Access::get_put);
            const ParameterCounts counts = count_parameters(row.parameters);
            if (!callable) throw "the member is not called this way";
            if (arguments < counts.required || arguments > counts.all) throw "wrong number of arguments";
            return;
        }
        throw "the class lists no such member";
    }
};

}  // namespace detail

// What all facades are: a reference to one of Excel's objects, or to Nothing, with typed names for
// the members that we call. Copies refer to the same object. A call on Nothing fails with error 424,
// as every other failure with automation::AutomationError.
class AnyFacade {
  public:
    AnyFacade() = default;
    explicit AnyFacade(ObjectRef object) : object_(std::move(object)) {}

    [[nodiscard]] const ObjectRef& object() const { return object_; }
    // Whether there is an object.
    explicit operator bool() const { return object_ != nullptr; }

  protected:
    Value invoke(std::string_view member, automation::Call kind, automation::Arguments arguments) const {
        if (!object_) {
            throw automation::AutomationError(automation::hresult::object_required, member, "an object is required");
        }
        return object_->invoke(member, kind, arguments);
    }

  private:
    ObjectRef object_;
};

// The calls that a facade class makes, held at compile time against its list Derived::members, which
// a test holds against Excel's object model. A getter whose answer may be Null gives back a Value,
// the others name their type: get<std::string>("Address"), get<excel::Font>("Font").
template <class Derived>
class Facade : public AnyFacade {
  public:
    using AnyFacade::AnyFacade;

  protected:
    template <class T = Value, class... A>
    T get(std::type_identity_t<detail::Checked<Derived, Access::get, sizeof...(A)>> member, A&&... arguments) const {
        return as<T>(invoke(member.name, automation::Call::Get, {Value(std::forward<A>(arguments))...}));
    }

    template <class T = Value, class... A>
    T call(std::type_identity_t<detail::Checked<Derived, Access::method, sizeof...(A)>> member,
           A&&... arguments) const {
        return as<T>(invoke(member.name, automation::Call::Method, {Value(std::forward<A>(arguments))...}));
    }

    void put(std::type_identity_t<detail::Checked<Derived, Access::get_put, 0>> member, Value value) const {
        invoke(member.name, automation::Call::Put, {std::move(value)});
    }

    void put_at(std::type_identity_t<detail::Checked<Derived, Access::get_put, 1>> member, Value index,
                Value value) const {
        invoke(member.name, automation::Call::Put, {std::move(index), std::move(value)});
    }

  private:
    template <class T>
    static T as(Value answer) {
        if constexpr (std::is_base_of_v<AnyFacade, T>) {
            return T(automation::to_object(answer));
        } else if constexpr (std::is_same_v<T, Value>) {
            return answer;
        } else {
            return automation::convert<T>(answer);
        }
    }
};

}  // namespace kestrune::excel
