#include "brvblib/xml/TypedValue.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <optional>

#include "automation/AutomationError.h"
#include "automation/Text.h"
#include "brvblib/Calendar.h"

namespace kestrune::brvblib {
namespace {

using automation::Date;
using automation::Value;
using std::chrono::sys_days;
using std::chrono::year;

// What a type's texts become.
enum class Reading { Boolean, Integer, Double, Date };

struct TypeRow {
    std::string_view name;
    Reading reading;
};

constexpr auto types = std::to_array<TypeRow>({
    {"boolean", Reading::Boolean},
    {"i1", Reading::Integer},
    {"i2", Reading::Integer},
    {"i4", Reading::Integer},
    {"int", Reading::Integer},
    {"ui1", Reading::Integer},
    {"ui2", Reading::Integer},
    {"r4", Reading::Double},
    {"r8", Reading::Double},
    {"float", Reading::Double},
    {"ui4", Reading::Double},
    {"date", Reading::Date},
    {"dateTime", Reading::Date},
    {"dateTime.tz", Reading::Date},
});

[[noreturn]] void mismatch(std::string_view type, std::string_view text) {
    throw automation::AutomationError(automation::hresult::type_mismatch, "nodeTypedValue",
                                      fmt::format("'{}' is no {}", text, type));
}

template <class T>
std::optional<T> number(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    T value{};
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<bool> truth(std::string_view text) {
    for (const std::string_view yes : {"1", "-1", "true"}) {
        if (automation::same_text(text, yes)) return true;
    }
    for (const std::string_view no : {"0", "false"}) {
        if (automation::same_text(text, no)) return false;
    }
    return std::nullopt;
}

// The digits at a place of a text as a number; nothing when one is no digit.
std::optional<unsigned> digits(std::string_view text, std::size_t at, std::size_t count) {
    if (text.size() < at + count) return std::nullopt;
    unsigned value = 0;
    for (const char c : text.substr(at, count)) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + static_cast<unsigned>(c - '0');
    }
    return value;
}

// 2026-01-31, 2026-01-31T12:30:15, 2026-01-31T12:30:15.250; a zone behind it is not looked at, as in MSXML.
std::optional<Date> date(std::string_view text) {
    const auto y = digits(text, 0, 4);
    const auto m = digits(text, 5, 2);
    const auto d = digits(text, 8, 2);
    if (!y || !m || !d || text[4] != '-' || text[7] != '-') return std::nullopt;
    const std::chrono::year_month_day day{year(static_cast<int>(*y)), std::chrono::month(*m), std::chrono::day(*d)};
    if (!day.ok()) return std::nullopt;
    std::int64_t time = 0;
    if (text.size() > 10) {
        const auto hour = digits(text, 11, 2);
        const auto minute = digits(text, 14, 2);
        const auto second = digits(text, 17, 2);
        if (text[10] != 'T' || !hour || !minute || !second || *hour > 23 || *minute > 59 || *second > 59) {
            return std::nullopt;
        }
        const unsigned fraction = text.size() > 20 && text[19] == '.' ? digits(text, 20, 3).value_or(0) : 0;
        time = ((*hour * 60LL + *minute) * 60 + *second) * 1000 + fraction;
    }
    return date_of({sys_days(day), time});
}

std::string iso_text(Date date) {
    const Moment moment = moment_of(date);
    const std::chrono::year_month_day day(moment.day);
    const std::int64_t time = moment.milliseconds;
    std::string text = fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}", static_cast<int>(day.year()),
                                   static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
                                   time / 3'600'000, time / 60'000 % 60, time / 1000 % 60);
    if (time % 1000 != 0) text += fmt::format(".{:03}", time % 1000);
    return text;
}

}  // namespace

TypedText typed_text(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Empty:
        case Value::Kind::Missing:
            return {};
        case Value::Kind::String:
            return {"", *value.if_is<std::string>()};
        case Value::Kind::Boolean:
            return {"boolean", *value.if_is<bool>() ? "1" : "0"};
        case Value::Kind::Integer:
            return {"i4", fmt::to_string(*value.if_is<std::int32_t>())};
        case Value::Kind::Double: {
            const double number = *value.if_is<double>();
            if (!std::isfinite(number)) mismatch("number", fmt::format("{}", number));
            return {"r8", fmt::format("{}", number)};
        }
        case Value::Kind::Date:
            return {"dateTime", iso_text(*value.if_is<Date>())};
        default:
            throw automation::AutomationError(automation::hresult::type_mismatch, "iXML.WriteLeaf",
                                              "a leaf holds a text, a number, a Boolean or a date");
    }
}

Value typed_value(std::string_view type, const std::string& text) {
    const std::string_view spelt = automation::without_white_space(text);
    for (const TypeRow& row : types) {
        if (row.name != type) continue;
        Value value;
        switch (row.reading) {
            case Reading::Boolean:
                if (const auto read = truth(spelt)) value = *read;
                break;
            case Reading::Integer:
                if (const auto read = number<std::int32_t>(spelt)) value = *read;
                break;
            case Reading::Double:
                if (const auto read = number<double>(spelt); read && std::isfinite(*read)) value = *read;
                break;
            case Reading::Date:
                if (const auto read = date(spelt)) value = *read;
                break;
        }
        if (value.is(Value::Kind::Empty)) mismatch(type, text);
        return value;
    }
    return text;
}

}  // namespace kestrune::brvblib
