#include "brxllib/autocolor/HardCodedNumbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "automation/Text.h"
#include "formula/Lexer.h"

namespace kestrune::brxllib {
namespace {

using formula::Token;
using formula::TokenKind;

// The arguments, from the first to the last position named, that say how a function works and not on what.
struct Workings {
    std::string_view function;
    int first;
    int last;
};

constexpr auto workings = std::to_array<Workings>({
    {"ADDRESS", 1, 4},
    {"AGGREGATE", 1, 2},
    {"CEILING.MATH", 3, 3},
    {"CELL", 1, 1},
    {"CHOOSE", 1, 1},
    {"DATE", 1, 3},
    {"DATEDIF", 3, 3},
    {"DAYS360", 3, 3},
    {"DOLLAR", 2, 2},
    {"EDATE", 2, 2},
    {"EOMONTH", 2, 2},
    {"FIND", 3, 3},
    {"FIXED", 2, 3},
    {"FLOOR.MATH", 3, 3},
    {"HLOOKUP", 3, 4},
    {"INDEX", 2, 4},
    {"INDIRECT", 2, 2},
    {"LARGE", 2, 2},
    {"LEFT", 2, 2},
    {"MATCH", 3, 3},
    {"MID", 2, 3},
    {"MROUND", 2, 2},
    {"NETWORKDAYS.INTL", 3, 3},
    {"NUMBERVALUE", 2, 3},
    {"OFFSET", 2, 5},
    {"QUARTILE", 2, 2},
    {"QUARTILE.INC", 2, 2},
    {"RANK", 3, 3},
    {"RANK.EQ", 3, 3},
    {"REPLACE", 2, 3},
    {"REPT", 2, 2},
    {"RIGHT", 2, 2},
    {"ROUND", 2, 2},
    {"ROUNDDOWN", 2, 2},
    {"ROUNDUP", 2, 2},
    {"SEARCH", 3, 3},
    {"SEQUENCE", 1, 4},
    {"SMALL", 2, 2},
    {"SORT", 2, 3},
    {"SUBSTITUTE", 4, 4},
    {"SUBTOTAL", 1, 1},
    {"TIME", 1, 3},
    {"TRUNC", 2, 2},
    {"VLOOKUP", 3, 4},
    {"WEEKDAY", 2, 2},
    {"WEEKNUM", 2, 2},
    {"WORKDAY.INTL", 3, 3},
    {"XLOOKUP", 5, 6},
    {"XMATCH", 3, 4},
    {"YEARFRAC", 3, 3},
});

bool says_how(std::string_view function, int argument) {
    return std::ranges::any_of(workings, [&](const Workings& row) {
        return argument >= row.first && argument <= row.last && automation::same_text(row.function, function);
    });
}

// What an opening parenthesis or brace belongs to; a function's name, or none.
struct Frame {
    std::string_view function;
    bool parenthesis = false;
    int argument = 1;
};

class Scan {
  public:
    explicit Scan(std::string_view text) : text_(text) {
        formula::Lexer lexer(text);
        for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
            if (token.kind != TokenKind::whitespace && token.kind != TokenKind::start) tokens_.push_back(token);
        }
    }

    bool finds_assumption() {
        for (std::size_t i = 0; i < tokens_.size(); ++i) {
            switch (tokens_[i].kind) {
                case TokenKind::open:
                    frames_.push_back({function_before(i), true});
                    break;
                case TokenKind::open_brace:
                    frames_.push_back({});
                    break;
                case TokenKind::close:
                case TokenKind::close_brace:
                    if (!frames_.empty()) frames_.pop_back();
                    break;
                case TokenKind::comma:
                    if (!frames_.empty()) ++frames_.back().argument;
                    break;
                case TokenKind::number:
                    if (assumed(i)) return true;
                    break;
                default:
                    break;
            }
        }
        return false;
    }

  private:
    [[nodiscard]] std::string_view function_before(std::size_t open) const {
        if (open == 0 || tokens_[open - 1].kind != TokenKind::function) return {};
        std::string_view name = tokens_[open - 1].text(text_).substr(tokens_[open - 1].prefix);
        for (const std::string_view marker : {"_xlfn.", "_xlws."}) {
            if (automation::same_text(name.substr(0, marker.size()), marker)) name.remove_prefix(marker.size());
        }
        return name;
    }

    [[nodiscard]] TokenKind kind(std::size_t at) const {
        return at < tokens_.size() ? tokens_[at].kind : TokenKind::end;
    }
    [[nodiscard]] std::string_view sign(std::size_t at) const {
        return kind(at) == TokenKind::binary ? tokens_[at].text(text_) : std::string_view();
    }
    [[nodiscard]] bool compares(std::size_t at) const {
        const std::string_view text = sign(at);
        return !text.empty() && (text.front() == '=' || text.front() == '<' || text.front() == '>');
    }

    [[nodiscard]] double value_of(std::size_t first, std::size_t last) const {
        const std::string_view digits = tokens_[first].text(text_);
        double value = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), value);
        for (std::size_t i = first + 1; i < last; ++i) value /= 100;  // each further token is a per cent sign
        return value;
    }

    // Whether what ends before a place, within its parentheses, argument and comparison, is divided or raised.
    [[nodiscard]] bool holds_ratio_before(std::size_t at) const {
        int depth = 0;
        while (at-- > 0) {
            if (kind(at) == TokenKind::close) ++depth;
            if (kind(at) == TokenKind::open && depth-- == 0) return false;
            if (sign(at) == "/" || sign(at) == "^") return true;
            if (depth == 0 && (kind(at) == TokenKind::comma || compares(at))) return false;
        }
        return false;
    }

    [[nodiscard]] bool assumed(std::size_t number) const {
        std::size_t before = number;  // of the operand with its signs
        while (before > 0 && tokens_[before - 1].kind == TokenKind::prefix) --before;
        const bool is_signed = before != number;
        std::size_t after = number + 1;
        while (kind(after) == TokenKind::postfix) ++after;
        const TokenKind left = before == 0 ? TokenKind::start : tokens_[before - 1].kind;
        const TokenKind right = kind(after);
        const bool opens = left == TokenKind::start || left == TokenKind::open || left == TokenKind::comma;

        const Frame frame = frames_.empty() ? Frame{} : frames_.back();
        const bool whole_argument = !frame.function.empty() && (left == TokenKind::open || left == TokenKind::comma) &&
                                    (right == TokenKind::comma || right == TokenKind::close);
        if (whole_argument && says_how(frame.function, frame.argument)) return false;

        const double value = value_of(number, after);
        if (value != 0 && value != 1) return true;
        if (whole_argument) return false;
        const bool compared_with = before > 0 && compares(before - 1);
        if (compared_with || (opens && compares(after))) return false;
        if (value != 1 || is_signed) return true;
        const std::string_view next = sign(after);
        if (opens && (next == "+" || next == "-" || next == "/")) return false;
        if (before > 0 && sign(before - 1) == "-" && holds_ratio_before(before - 1)) return false;
        const bool closes_sum = before > 0 && sign(before - 1) == "+" && right == TokenKind::close;
        return !(closes_sum && frame.parenthesis && frame.function.empty());
    }

    std::string_view text_;
    std::vector<Token> tokens_;
    std::vector<Frame> frames_;
};

}  // namespace

bool holds_hard_coded_number(std::string_view formula) { return Scan(formula).finds_assumption(); }

}  // namespace kestrune::brxllib
