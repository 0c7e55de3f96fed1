#include "host/objects/CellEntry.h"

#include <algorithm>
#include <cmath>

#include "automation/Conversion.h"
#include "automation/Text.h"
#include "formula/FormulaCheck.h"
#include "formula/Lexer.h"
#include "host/objects/EnteredNumber.h"
#include "host/objects/ErrorValues.h"
#include "host/objects/Refusal.h"
#include "number_format/GeneralText.h"

namespace kestrune::host {

using number_format::full_number_text;
namespace {

using automation::Value;

// How many bytes of a function's word are marks that files put in front of functions newer than the format, and that
// are known in small letters only: 12 in _xlfn._xlws.SORT. A parameter of LAMBDA (_xlpm.f) keeps its spelling.
std::size_t marked_length(const formula::Token& token, std::string_view formula) {
    const std::string_view word = formula.substr(token.body(), token.end() - token.body());
    if (word.starts_with("_xlpm.")) return word.size();
    std::size_t marks = 0;
    for (const std::string_view mark : {"_xlfn.", "_xlws.", "_xludf."}) {
        if (word.substr(marks).starts_with(mark)) marks += mark.size();
    }
    return marks;
}

constexpr std::size_t longest_text = 32'767;  // characters of a cell

std::size_t characters_of(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

CellEntry constant(CellContent content, std::string_view format = {}) {
    CellEntry entry;
    entry.content = std::move(content);
    entry.format = format;
    return entry;
}

CellEntry number_entry(std::string_view member, double number, std::string_view format = {}) {
    if (!std::isfinite(number)) refuse(member, "the number is not finite");
    return constant(CellContent::of(number), format);
}

CellEntry text_constant(std::string_view member, std::string text, bool quoted) {
    if (text.size() > longest_text && characters_of(text) > longest_text) {
        refuse(member, "a cell holds at most 32,767 characters");
    }
    CellEntry entry;
    entry.content = CellContent::of(std::move(text));
    entry.quoted = quoted;
    return entry;
}

CellEntry entry_of_text(std::string_view member, const std::string& text, const EntryRules& rules) {
    if (text.empty()) return {};
    if (text.front() == '\'') return text_constant(member, text.substr(1), true);
    if (text.front() == '=' && text.size() > 1) {
        if (const auto error = formula::check_formula(text, rules.notation)) {
            refuse(member, "the formula '" + text + "' is wrong: " + error->message);
        }
        CellEntry entry;
        entry.formula = capitalized(std::string_view(text).substr(1), rules.notation);
        return entry;
    }
    if (automation::same_text(text, "TRUE")) return constant(CellContent::of(true));
    if (automation::same_text(text, "FALSE")) return constant(CellContent::of(false));
    if (text.front() == '#') {
        if (const auto error = error_of_text(text)) return constant(CellContent::of(*error));
    }
    if (const auto number = entered_number(text)) return number_entry(member, number->value, number->format);
    if (const auto date = entered_date(text, rules.date1904)) return number_entry(member, date->value, date->format);
    return text_constant(member, text, false);
}

}  // namespace

CellEntry entry_of(std::string_view member, const Value& value, const EntryRules& rules) {
    switch (value.kind()) {
        case Value::Kind::Empty:
        case Value::Kind::Null:
            return {};
        case Value::Kind::Boolean:
            return constant(CellContent::of(*value.if_is<bool>()));
        case Value::Kind::Integer:
            return number_entry(member, *value.if_is<std::int32_t>());
        case Value::Kind::Double:
            return number_entry(member, *value.if_is<double>());
        case Value::Kind::Date: {
            const double serial = value.if_is<automation::Date>()->serial - (rules.date1904 ? days_of_1904 : 0);
            if (serial < 0) refuse(member, "the date lies before the workbook's first day");
            return number_entry(member, serial, serial == std::floor(serial) ? "m/d/yyyy" : "m/d/yyyy h:mm");
        }
        case Value::Kind::Error:
            return constant(CellContent::of(error_of_code(value.if_is<automation::Error>()->code)));
        case Value::Kind::String:
            return entry_of_text(member, *value.if_is<std::string>(), rules);
        default:
            refuse(member, "no cell can hold this value");
    }
}

CellEntry text_entry_of(std::string_view member, const Value& value, const EntryRules& rules) {
    switch (value.kind()) {
        case Value::Kind::String: {
            const std::string& text = *value.if_is<std::string>();
            if (text.empty()) return {};
            const bool quoted = text.front() == '\'';
            return text_constant(member, quoted ? text.substr(1) : text, quoted);
        }
        case Value::Kind::Integer:
        case Value::Kind::Double:
            return text_constant(member, full_number_text(automation::to_double(value)), false);
        default:
            return entry_of(member, value, rules);
    }
}

std::string capitalized(std::string_view formula, formula::Notation notation) {
    std::string text(formula);
    formula::Lexer lexer(formula, notation);
    for (formula::Token token = lexer.next(); token.kind != formula::TokenKind::end; token = lexer.next()) {
        const bool capitals = token.kind == formula::TokenKind::function ||
                              token.kind == formula::TokenKind::reference ||
                              token.kind == formula::TokenKind::boolean || token.kind == formula::TokenKind::error;
        if (!capitals) continue;
        for (std::size_t i = token.body() + marked_length(token, formula); i < token.end(); ++i) {
            if (text[i] >= 'a' && text[i] <= 'z') text[i] = static_cast<char>(text[i] - 'a' + 'A');
        }
    }
    return text;
}

}  // namespace kestrune::host
