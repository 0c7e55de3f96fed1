#include "brvblib/iSort.h"

#include <algorithm>

#include "automation/Text.h"

namespace kestrune::brvblib {
namespace {

using automation::Value;
using Kind = Value::Kind;

enum class Rank { Number, Text, Boolean, Error, Empty };

Rank rank(const Value& value) {
    switch (value.kind()) {
        case Kind::Integer:
        case Kind::Double:
        case Kind::Date:
            return Rank::Number;
        case Kind::String:
            return Rank::Text;
        case Kind::Boolean:
            return Rank::Boolean;
        case Kind::Error:
            return Rank::Error;
        case Kind::Empty:
        case Kind::Null:
        case Kind::Missing:
            return Rank::Empty;
        default:
            throw automation::AutomationError(automation::hresult::type_mismatch, "iSort.Sorted",
                                              "objects and arrays have no order");
    }
}

// Within one rank.
bool less(const Value& a, const Value& b, Rank of) {
    switch (of) {
        case Rank::Number:
            return automation::to_double(a) < automation::to_double(b);
        case Rank::Text:
            return automation::text_less(*a.if_is<std::string>(), *b.if_is<std::string>());
        case Rank::Boolean:
            return !*a.if_is<bool>() && *b.if_is<bool>();
        default:
            return false;
    }
}

}  // namespace

Value iSort::sorted(const Value& array, std::optional<bool> descending) const {
    if (!array.array() || array.array()->dimensions() != 1) {
        throw automation::AutomationError(automation::hresult::type_mismatch, "iSort.Sorted",
                                          "takes an array of one dimension");
    }
    automation::Array result = *array.array();
    const bool down = descending.value_or(false);
    for (const Value& value : result.elements()) static_cast<void>(rank(value));
    std::ranges::stable_sort(result.elements(), [&](const Value& a, const Value& b) {
        const Rank of_a = rank(a);
        const Rank of_b = rank(b);
        if (of_a == Rank::Empty || of_b == Rank::Empty) return of_a < of_b;
        if (of_a != of_b) return down ? of_b < of_a : of_a < of_b;
        return down ? less(b, a, of_a) : less(a, b, of_a);
    });
    return result;
}

const automation::MemberTable& iSort::members() {
    static constexpr auto rows =
        automation::member_rows(automation::method<&iSort::sorted>("Sorted", 1, "Array, [Descending]"));
    static constexpr automation::MemberTable table("iSort", rows);
    return table;
}

}  // namespace kestrune::brvblib
