#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "automation/Value.h"

namespace kestrune::automation {

class MemberTable;

// How a member is called; the bits of OLE's DISPATCH_ flags, since a caller may leave open
// whether a name is a method or a property.
enum class Call : unsigned {
    Method = 1,
    Get = 2,
    MethodOrGet = 3,
    Put = 4,
    PutReference = 8,
};
constexpr bool has(Call flags, Call flag) { return (static_cast<unsigned>(flags) & static_cast<unsigned>(flag)) != 0; }
constexpr bool is_put(Call flags) { return has(flags, Call::Put) || has(flags, Call::PutReference); }

// What a call hands over. In a put the last positional argument is the new value. Positional
// arguments are by reference: a callee may change them, and the caller sees it.
struct Arguments {
    std::vector<Value> positional;
    std::vector<std::pair<std::string, Value>> named;

    Arguments() = default;
    Arguments(std::initializer_list<Value> values) : positional(values) {}

    Arguments& name(std::string argument, Value value) {
        named.emplace_back(std::move(argument), std::move(value));
        return *this;
    }
};

// An object that answers late-bound calls: one of ours, the embedded host's, or another program's through COM.
class Object : public std::enable_shared_from_this<Object> {
  public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;

    // Calls a member by name, whatever its case; the empty name is the default member.
    // Fails with AutomationError and in no other way.
    virtual Value invoke(std::string_view member, Call kind, Arguments& arguments) = 0;

    // The name that TypeName would give ("Range", "iGlobal").
    [[nodiscard]] virtual std::string_view type_name() const = 0;

    // The table that the object's class is served by; null when it has none, as objects of other programs.
    [[nodiscard]] virtual const MemberTable* member_table() const { return nullptr; }
};

// The calls as one writes them; each is one automation call.
Value get(Object& object, std::string_view member, Arguments arguments = {});
Value call(Object& object, std::string_view member, Arguments arguments = {});
void put(Object& object, std::string_view member, Value value);

}  // namespace kestrune::automation
