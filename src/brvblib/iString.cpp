#include "brvblib/iString.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>

#include "brvblib/ClosingParenthesis.h"
#include "brvblib/CommandTexts.h"
#include "brvblib/Messages.h"
#include "brvblib/NumberFormatDisplay.h"
#include "brvblib/NumberFormatSections.h"
#include "brvblib/TypedNumber.h"
#include "forms/MsgBox.h"

namespace kestrune::brvblib {

using automation::MemberTable;
using automation::method;
using automation::Value;

std::string_view iString::text(std::int32_t number) const {
    // By the number's ten thousands.
    static constexpr std::array columns{&CommandText::name, &CommandText::description, &CommandText::key,
                                        &CommandText::group, &CommandText::topic};
    const std::int32_t column = number / 10000;
    const std::int32_t command = number % 10000 - 2000;
    if (number >= 0 && static_cast<std::size_t>(column) < columns.size() && command >= 0 &&
        static_cast<std::size_t>(command) < command_texts.size()) {
        return command_texts[static_cast<std::size_t>(command)].*columns[static_cast<std::size_t>(column)];
    }
    if (const auto message = message_text(number)) return *message;
    throw automation::AutomationError(automation::hresult::bad_index, "iString.Text",
                                      fmt::format("there is no text {}", number));
}

Value iString::sections(const std::string& number_format) const {
    const auto sections = number_format_sections(number_format);
    automation::Array array({1, static_cast<std::int32_t>(sections.size())});
    std::ranges::copy(sections, array.elements().begin());
    return array;
}

namespace {

Value adjusted(const AdjustedFormat& format) {
    automation::Array array({1, 2});
    array.elements()[0] = static_cast<std::int32_t>(format.change);
    array.elements()[1] = format.format;
    return array;
}

}  // namespace

Value iString::adjust_decimals(const std::string& number_format, std::int32_t step,
                               const std::string& general_shows) const {
    return adjusted(with_decimals(number_format, step, general_shows));
}

Value iString::adjust_scale(const std::string& number_format, std::int32_t step) const {
    return adjusted(with_scale(number_format, step));
}

std::int32_t iString::closing_parenthesis(const std::string& expression) const {
    return brvblib::closing_parenthesis(expression);
}

bool iString::version_at_least(const std::string& version, std::int32_t major) const {
    std::int32_t found = 0;
    const auto [end, failure] = std::from_chars(version.data(), version.data() + version.size(), found);
    return failure == std::errc{} && found >= major;
}

bool iString::is_numeric(const std::string& text) const { return typed_number(text).has_value(); }

double iString::number(const std::string& text) const {
    if (const auto number = typed_number(text)) return *number;
    throw automation::AutomationError(automation::hresult::type_mismatch, "iString.Number",
                                      fmt::format("'{}' is not a number", text));
}

bool iString::check_numeric_field(const std::string& text, const std::string& field_name,
                                  const std::string& caption) const {
    if (is_numeric(text)) return true;
    constexpr std::int32_t enter_a_number = 3111;
    std::string message(message_text(enter_a_number).value_or("%1?"));
    message.replace(message.find("%1"), 2, field_name);
    forms::MsgBox(library_->services.presenter, message, forms::vbExclamation, caption);
    return false;
}

std::string iString::name_text(const std::string& text) const {
    std::string name;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool letter = (automation::lower(c) >= 'a' && automation::lower(c) <= 'z') || byte >= 0x80U;
        const bool stays = letter || (c >= '0' && c <= '9') || c == '.' || c == '_';
        name += stays ? c : '_';
    }
    return name;
}

const MemberTable& iString::members() {
    static constexpr auto rows = automation::member_rows(
        method<&iString::text>("Text", 1, "Number"), method<&iString::style_key>("StyleKey", 2, "StyleName"),
        method<&iString::sections>("Sections", 3, "NumberFormat"),
        method<&iString::closing_parenthesis>("ClosingParenthesis", 4, "Expression"),
        method<&iString::version_at_least>("VersionAtLeast", 5, "Version, Major"),
        method<&iString::is_numeric>("IsNumeric", 6, "Text"), method<&iString::number>("Number", 7, "Text"),
        method<&iString::check_numeric_field>("CheckNumericField", 8, "Text, FieldName, Caption"),
        method<&iString::name_text>("NameText", 9, "Text"),
        method<&iString::adjust_decimals>("AdjustDecimals", 10, "NumberFormat, Step, GeneralShows"),
        method<&iString::adjust_scale>("AdjustScale", 11, "NumberFormat, Step"));
    static constexpr MemberTable table("iString", rows);
    return table;
}

}  // namespace kestrune::brvblib
