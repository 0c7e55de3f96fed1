#include "host/model/ConditionOperand.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>
#include <utility>
#include <vector>

#include "formula/Characters.h"
#include "formula/Lexer.h"
#include "formula/SheetName.h"
#include "host/model/Workbook.h"
#include "number_format/GeneralText.h"

namespace kestrune::host {

using number_format::full_number_text;

namespace {

using formula::Token;
using formula::TokenKind;

constexpr std::array<std::pair<std::string_view, CellError>, 7> errors{{
    {"#NULL!", CellError::Null},
    {"#DIV/0!", CellError::Div0},
    {"#VALUE!", CellError::Value},
    {"#REF!", CellError::Ref},
    {"#NAME?", CellError::Name},
    {"#NUM!", CellError::Num},
    {"#N/A", CellError::NA},
}};

std::string unquoted(std::string_view literal) {
    std::string text;
    for (std::size_t i = 1; i + 1 < literal.size(); ++i) {
        text += literal[i];
        if (literal[i] == '"') ++i;
    }
    return text;
}

std::vector<Token> tokens_of(std::string_view text) {
    std::vector<Token> tokens;
    formula::Lexer lexer(text);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next())
        if (token.kind != TokenKind::whitespace && token.kind != TokenKind::start) tokens.push_back(token);
    return tokens;
}

std::optional<CellContent> referenced(Sheet& own, std::string_view text, const Token& token, Position anchor,
                                      Position at) {
    Sheet* sheet = &own;
    if (token.prefix > 0) {
        const auto& sheets = own.workbook().sheets();
        const auto named = std::ranges::find_if(
            sheets, [&](const auto& each) { return formula::names_sheet(token.sheet(text), each->name()); });
        if (named == sheets.end()) return std::nullopt;
        sheet = named->get();
    }
    const auto target =
        formula::moved(token.reference, at.row - anchor.row, at.column - anchor.column, formula::OffSheet::wrap);
    if (!target || target->shape != formula::Shape::cells) return std::nullopt;
    const Area area = formula::area_of(*target);
    if (!area.single_cell()) return std::nullopt;
    return known_content(*sheet, area.top_left());
}

struct Place {
    Sheet& sheet;
    std::string_view text;
    Position anchor;
    Position at;
};

std::optional<CellContent> value_of(const Place& place, std::span<const Token> tokens) {
    double factor = 1;
    const auto is = [&](const Token& token, TokenKind kind, std::string_view spelling) {
        return token.kind == kind && token.text(place.text) == spelling;
    };
    while (tokens.size() > 1 &&
           (is(tokens.front(), TokenKind::prefix, "-") || is(tokens.front(), TokenKind::prefix, "+"))) {
        if (tokens.front().text(place.text) == "-") factor = -factor;
        tokens = tokens.subspan(1);
    }
    while (tokens.size() > 1 && is(tokens.back(), TokenKind::postfix, "%")) {
        factor /= 100;
        tokens = tokens.first(tokens.size() - 1);
    }
    if (tokens.size() != 1) return std::nullopt;
    const Token& token = tokens.front();
    const std::string_view text = token.text(place.text);
    if (token.kind == TokenKind::number)
        return CellContent::of(std::strtod(std::string(text).c_str(), nullptr) * factor);
    if (factor != 1) return std::nullopt;
    switch (token.kind) {
        case TokenKind::string:
            return CellContent::of(unquoted(text));
        case TokenKind::boolean:
            return CellContent::of(formula::equal_ignoring_case(text, "TRUE"));
        case TokenKind::error: {
            const auto known = std::ranges::find(errors, text, &std::pair<std::string_view, CellError>::first);
            return CellContent::of(known == errors.end() ? CellError::Unknown : known->second);
        }
        case TokenKind::reference:
            return referenced(place.sheet, place.text, token, place.anchor, place.at);
        default:
            return std::nullopt;
    }
}

std::int32_t rank(CellKind kind) {
    switch (kind) {
        case CellKind::Number:
            return 0;
        case CellKind::String:
            return 1;
        default:
            return 2;
    }
}

// A blank beside another value is that kind's nothing.
CellContent blank_as(CellKind kind) {
    CellContent content;
    content.kind = kind == CellKind::Blank ? CellKind::Number : kind;
    return content;
}

template <class T>
std::int32_t order(const T& left, const T& right) {
    return left < right ? -1 : right < left ? 1 : 0;
}

}  // namespace

std::optional<CellContent> known_content(Sheet& sheet, Position at) {
    CellContent content = sheet.content_at(at);
    if (content.kind == CellKind::Blank && sheet.formula_record(at)) return std::nullopt;
    return content;
}

std::string text_of(const CellContent& content) {
    switch (content.kind) {
        case CellKind::Number:
            return full_number_text(content.number);
        case CellKind::Boolean:
            return content.boolean ? "TRUE" : "FALSE";
        case CellKind::String:
            return content.text;
        default:
            return {};
    }
}

std::optional<std::int32_t> compared(const CellContent& left, const CellContent& right) {
    if (left.kind == CellKind::Error || right.kind == CellKind::Error) return std::nullopt;
    if (left.kind == CellKind::Blank) {
        if (right.kind == CellKind::Blank) return 0;
        return compared(blank_as(right.kind), right);
    }
    if (right.kind == CellKind::Blank) return compared(left, blank_as(left.kind));
    if (left.kind != right.kind) return order(rank(left.kind), rank(right.kind));
    switch (left.kind) {
        case CellKind::Number:
            return order(left.number, right.number);
        case CellKind::Boolean:
            return order(left.boolean, right.boolean);
        default: {
            std::string a = left.text;
            std::string b = right.text;
            std::ranges::transform(a, a.begin(), formula::to_upper);
            std::ranges::transform(b, b.begin(), formula::to_upper);
            return order(a, b);
        }
    }
}

std::optional<CellContent> operand_value(Sheet& sheet, std::string_view text, Position anchor, Position at) {
    return value_of({sheet, text, anchor, at}, tokens_of(text));
}

std::optional<bool> condition_value(Sheet& sheet, std::string_view text, Position anchor, Position at) {
    const Place place{sheet, text, anchor, at};
    const std::vector<Token> tokens = tokens_of(text);
    const auto sign = std::ranges::find(tokens, TokenKind::binary, &Token::kind);
    if (sign == tokens.end()) {
        const auto value = value_of(place, tokens);
        if (!value || value->kind == CellKind::String) return std::nullopt;
        return value->kind == CellKind::Boolean ? value->boolean : value->number != 0;
    }
    const auto left = value_of(place, {tokens.begin(), sign});
    const auto right = value_of(place, {sign + 1, tokens.end()});
    if (!left || !right) return std::nullopt;
    const std::string_view spelling = sign->text(text);
    constexpr std::array<std::string_view, 6> known{"=", "<>", "<", "<=", ">", ">="};
    if (std::ranges::find(known, spelling) == known.end()) return std::nullopt;
    const auto result = compared(*left, *right);
    if (!result) return false;
    if (spelling == "=") return *result == 0;
    if (spelling == "<>") return *result != 0;
    if (spelling == "<") return *result < 0;
    if (spelling == "<=") return *result <= 0;
    if (spelling == ">") return *result > 0;
    return *result >= 0;
}

}  // namespace kestrune::host
