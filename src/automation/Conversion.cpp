#include "automation/Conversion.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <limits>

#include "automation/Text.h"

namespace kestrune::automation {
namespace {

using Kind = Value::Kind;

[[noreturn]] void mismatch(std::string_view wanted) {
    throw AutomationError(hresult::type_mismatch, "conversion", fmt::format("the value is not {}", wanted));
}

// The number that a text spells, blanks around it allowed; hexadecimal as Visual Basic writes it.
double number_of(std::string_view text, std::string_view wanted) {
    text = trimmed(text);
    if (text.size() > 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h')) {
        std::uint32_t bits = 0;
        const auto [end, failure] = std::from_chars(text.data() + 2, text.data() + text.size(), bits, 16);
        if (failure == std::errc{} && end == text.data() + text.size()) return static_cast<std::int32_t>(bits);
        mismatch(wanted);
    }
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    double number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure == std::errc::result_out_of_range)
        throw AutomationError(hresult::overflow, "conversion", "the number is too large");
    if (failure != std::errc{} || end != text.data() + text.size() || !std::isfinite(number)) mismatch(wanted);
    return number;
}

}  // namespace

double to_double(const Value& value) {
    switch (value.kind()) {
        case Kind::Empty:
            return 0;
        case Kind::Boolean:
            return *value.if_is<bool>() ? -1 : 0;
        case Kind::Integer:
            return *value.if_is<std::int32_t>();
        case Kind::Double:
            return *value.if_is<double>();
        case Kind::Date:
            return value.if_is<Date>()->serial;
        case Kind::String:
            return number_of(*value.if_is<std::string>(), "a number");
        default:
            mismatch("a number");
    }
}

std::int32_t to_integer(const Value& value) {
    if (const auto* whole = value.if_is<std::int32_t>()) return *whole;
    // nearbyint follows the default rounding mode, which takes halves to the even neighbour.
    const double rounded = std::nearbyint(to_double(value));
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max())) {
        throw AutomationError(hresult::overflow, "conversion", "the number does not fit 32 bits");
    }
    return static_cast<std::int32_t>(rounded);
}

bool to_boolean(const Value& value) {
    if (const auto* truth = value.if_is<bool>()) return *truth;
    if (const auto* text = value.if_is<std::string>()) {
        if (same_text(*text, "True") || same_text(*text, "#TRUE#")) return true;
        if (same_text(*text, "False") || same_text(*text, "#FALSE#")) return false;
        return number_of(*text, "a Boolean") != 0;
    }
    return to_double(value) != 0;
}

std::string to_text(const Value& value) {
    switch (value.kind()) {
        case Kind::Empty:
            return {};
        case Kind::Boolean:
            return *value.if_is<bool>() ? "True" : "False";
        case Kind::Integer:
            return fmt::to_string(*value.if_is<std::int32_t>());
        case Kind::Double:
            return fmt::format("{:.15G}", *value.if_is<double>());
        case Kind::Date:
            return fmt::format("{:.15G}", value.if_is<Date>()->serial);
        case Kind::String:
            return *value.if_is<std::string>();
        default:
            mismatch("a text");
    }
}

ObjectRef to_object(const Value& value) {
    if (const auto* object = value.if_is<ObjectRef>()) return *object;
    throw AutomationError(hresult::object_required, "conversion", "the value is not an object");
}

Object& to_required_object(const Value& value) {
    const auto* object = value.if_is<ObjectRef>();
    if (!object || !*object) throw AutomationError(hresult::object_required, "conversion", "an object is required");
    return **object;
}

}  // namespace kestrune::automation
