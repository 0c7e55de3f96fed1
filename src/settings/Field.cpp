#include "settings/Field.h"

#include <fmt/format.h>

#include <charconv>
#include <optional>

#include "automation/Conversion.h"
#include "automation/Text.h"
#include "settings/Days.h"

namespace kestrune::settings {

using automation::AutomationError;
using automation::Date;
using automation::Value;

namespace {

// A person who lays a file out puts a value on a line of its own.
Value without_blanks(const Value& value) {
    const auto* text = value.if_is<std::string>();
    if (!text) return value;
    return automation::without_white_space(*text);
}

[[noreturn]] void mismatch(const Value& value, std::string_view wanted) {
    throw AutomationError(automation::hresult::type_mismatch, "conversion",
                          fmt::format("'{}' is no {}", automation::to_text(value), wanted));
}

// Runs a conversion; its failure names the value.
template <class Convert>
auto converted(const Value& value, std::string_view wanted, Convert&& convert) {
    const Value spelt = without_blanks(value);
    try {
        return convert(spelt);
    } catch (const AutomationError& error) {
        if (error.code() == automation::hresult::type_mismatch && value.if_is<std::string>()) mismatch(value, wanted);
        throw;
    }
}

// Texts that spell a Boolean count as Visual Basic's numbers for it.
Value number_of(const Value& value) {
    const auto* text = value.if_is<std::string>();
    if (text && automation::same_text(*text, "True")) return true;
    if (text && automation::same_text(*text, "False")) return false;
    return value;
}

std::optional<Date> spelt_date(std::string_view text) {
    if (text.size() > 10 && text.substr(10) != "T00:00:00") return std::nullopt;
    if (text.size() < 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const auto number = [&](std::size_t at, std::size_t count) {
        unsigned digits = 0;
        const auto [end, failure] = std::from_chars(text.data() + at, text.data() + at + count, digits);
        return failure == std::errc{} && end == text.data() + at + count ? digits : 0U;
    };
    return day(static_cast<int>(number(0, 4)), number(5, 2), number(8, 2));
}

}  // namespace

Value value_of(bool content) { return content; }
Value value_of(std::int32_t content) { return content; }
Value value_of(double content) { return content; }

Value value_of(const std::string& content) { return content; }
Value value_of(Date content) { return content; }
Value value_of(const styles::StyleRef& content) { return content ? content->FriendlyName : std::string(); }

void take(bool& content, const Value& value, const styles::cStyles&) {
    content = converted(value, "Boolean", automation::to_boolean);
}

void take(std::int32_t& content, const Value& value, const styles::cStyles&) {
    content =
        converted(value, "whole number", [](const Value& spelt) { return automation::to_integer(number_of(spelt)); });
}

void take(double& content, const Value& value, const styles::cStyles&) {
    content = converted(value, "number", automation::to_double);
}

void take(std::string& content, const Value& value, const styles::cStyles&) { content = automation::to_text(value); }

void take(Date& content, const Value& value, const styles::cStyles&) {
    content = converted(value, "date such as 2026-01-31", [](const Value& spelt) {
        const auto* text = spelt.if_is<std::string>();
        if (const auto date = text ? spelt_date(*text) : std::nullopt) return *date;
        return Date{automation::to_double(spelt)};
    });
}

void take(styles::StyleRef& content, const Value& value, const styles::cStyles& library) {
    content = library.Item(automation::to_text(value));
}

}  // namespace kestrune::settings
