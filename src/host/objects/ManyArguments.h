#pragma once

#include <span>
#include <string_view>
#include <type_traits>

#include "automation/MemberTable.h"

namespace kestrune::host {

// The row of a method whose arguments are too many for a signature: the function takes all of them as one span, in the
// places of the parameters, Missing where one was left out.
template <auto function>
consteval automation::Member of_many(std::string_view name, std::int32_t id, std::string_view parameters) {
    automation::Member member;
    member.name = name;
    member.id = id;
    member.is_method = true;
    member.parameters = parameters;
    while (!parameters.empty()) {
        ++member.parameter_count;
        if (!automation::detail::take_parameter(parameters).optional) ++member.required_count;
    }
    member.run = [](automation::Object& self, std::span<automation::Value> arguments) {
        using Class = typename automation::detail::FunctionShape<decltype(function)>::Class;
        return automation::Value((static_cast<Class&>(self).*function)(arguments));
    };
    return member;
}

}  // namespace kestrune::host
