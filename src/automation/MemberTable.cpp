#include "automation/MemberTable.h"

#include <fmt/format.h>

#include <algorithm>

namespace kestrune::automation {
namespace {

std::string full_name(const MemberTable& table, std::string_view member) {
    return fmt::format("{}.{}", table.class_name(), member.empty() ? "default member" : member);
}

// Positions of the named arguments among a member's parameters.
std::size_t position_of(const MemberTable& table, const Member& member, std::string_view argument) {
    std::string_view list = member.parameters;
    for (std::size_t i = 0; i < member.parameter_count; ++i) {
        if (same_text(detail::take_parameter(list).name, argument)) return i;
    }
    throw WrongCall(hresult::unknown_name, full_name(table, member.name),
                    fmt::format("there is no argument '{}'", argument));
}

// Runs a thunk with the arguments in their places, and gives by-reference changes back.
Value run_placed(const MemberTable& table, const Member& member, Thunk thunk, std::size_t count, std::size_t required,
                 Object& self, Arguments& arguments) {
    const std::size_t given = arguments.positional.size();
    if (given > count) {
        throw WrongCall(hresult::bad_argument_count, full_name(table, member.name),
                        fmt::format("takes {} arguments, not {}", count, given));
    }
    std::vector<Value> slots(count, Value(Missing{}));
    std::move(arguments.positional.begin(), arguments.positional.end(), slots.begin());
    for (auto& [name, value] : arguments.named) {
        Value& slot = slots[position_of(table, member, name)];
        if (!slot.is(Value::Kind::Missing)) {
            throw WrongCall(hresult::bad_argument_count, full_name(table, member.name),
                            fmt::format("the argument '{}' is given twice", name));
        }
        slot = value;
    }
    for (std::size_t i = 0; i < required; ++i) {
        if (slots[i].is(Value::Kind::Missing)) {
            throw WrongCall(hresult::not_optional, full_name(table, member.name),
                            fmt::format("argument {} is missing", i + 1));
        }
    }
    Value result;
    try {
        result = thunk(self, slots);
    } catch (const detail::WrongArgument& wrong) {
        throw WrongCall(wrong.code, full_name(table, member.name), wrong.description, wrong.position);
    } catch (const WrongCall& error) {
        // Wrong was a call that the member made, not this one.
        throw AutomationError(error.code(), error.member(), error.description());
    } catch (const AutomationError& error) {
        // A failed conversion knows no member; the caller should read which one it was.
        if (error.member() != "conversion") throw;
        throw AutomationError(error.code(), full_name(table, member.name), error.description());
    }
    std::move(slots.begin(), slots.begin() + static_cast<std::ptrdiff_t>(given), arguments.positional.begin());
    return result;
}

}  // namespace

const Member* MemberTable::find(std::string_view name) const {
    if (name.empty()) return find(0);
    const auto row = std::ranges::find_if(rows_, [&](const Member& m) { return same_text(m.name, name); });
    return row == rows_.end() ? nullptr : &*row;
}

const Member* MemberTable::find(std::int32_t id) const {
    const auto row = std::ranges::lower_bound(rows_, id, {}, &Member::id);
    return row == rows_.end() || row->id != id ? nullptr : &*row;
}

Value MemberTable::invoke(Object& self, std::string_view name, Call kind, Arguments& arguments) const {
    const Member* member = find(name);
    if (!member) {
        throw WrongCall(hresult::unknown_name, full_name(*this, name), "there is no such member");
    }
    if (is_put(kind)) {
        if (!member->set && member->run && !member->is_method && !member->parameter_count) {
            // Cells(1, 1) = 5 writes the default member of what the property answers.
            if (arguments.positional.size() > 1) {
                Arguments none;
                const Value target = member->run(self, none.positional);
                return to_required_object(target).invoke({}, kind, arguments);
            }
        }
        if (!member->set) {
            throw WrongCall(hresult::member_not_found, full_name(*this, name), "cannot be written");
        }
        if (arguments.positional.empty()) {
            throw WrongCall(hresult::not_optional, full_name(*this, name), "the new value is missing");
        }
        // The new value comes last, after parameters that may have been left out.
        Value fresh = std::move(arguments.positional.back());
        arguments.positional.pop_back();
        if (arguments.positional.size() > member->parameter_count) {
            throw WrongCall(hresult::bad_argument_count, full_name(*this, name),
                            fmt::format("takes {} arguments", member->parameter_count));
        }
        arguments.positional.resize(member->parameter_count, Value(Missing{}));
        arguments.positional.push_back(std::move(fresh));
        return run_placed(*this, *member, member->set, member->parameter_count + 1U, member->required_count, self,
                          arguments);
    }
    // Visual Basic calls late-bound names without saying whether they are methods or properties, and
    // Excel answers either; only a plain method that is read with Get alone is wrong enough to refuse.
    if (kind == Call::Get && member->is_method) {
        throw WrongCall(hresult::member_not_found, full_name(*this, name), "is a method, not a property");
    }
    if (!member->is_method && member->parameter_count == 0 && !arguments.positional.empty()) {
        Arguments none;
        const Value target = member->run(self, none.positional);
        return to_required_object(target).invoke({}, Call::MethodOrGet, arguments);
    }
    return run_placed(*this, *member, member->run, member->parameter_count, member->required_count, self, arguments);
}

}  // namespace kestrune::automation
