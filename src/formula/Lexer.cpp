#include "formula/Lexer.h"

#include <array>

#include "formula/A1.h"
#include "formula/Characters.h"
#include "formula/R1C1.h"

namespace kestrune::formula {
namespace {

constexpr std::size_t none = std::string_view::npos;

// Bytes of the longest sheet or workbook name looked for in front of a "!": the limit keeps looking ahead cheap.
constexpr std::size_t longest_sheet = 256;

constexpr std::string_view lost_reference = "#REF!";

constexpr std::array<std::string_view, 18> error_values{
    "#NULL!", "#DIV/0!", "#VALUE!",   "#REF!",     "#NAME?", "#NUM!",     "#N/A",       "#GETTING_DATA", "#SPILL!",
    "#CALC!", "#FIELD!", "#BLOCKED!", "#UNKNOWN!", "#BUSY!", "#CONNECT!", "#EXTERNAL!", "#PYTHON!",      "#TIMEOUT!"};

// The length of the error value that the text starts with, or 0.
std::size_t error_length(std::string_view text) {
    for (const auto value : error_values)
        if (starts_with_ignoring_case(text, value)) return value.size();
    return 0;
}

}  // namespace

Token Lexer::token(TokenKind kind, std::size_t end, bool is_operand) {
    Token result;
    result.kind = kind;
    result.offset = at_;
    result.length = end - at_;
    at_ = end;
    after_operand_ = is_operand;
    return result;
}

// Behind the word that starts here, or `limit` bytes on.
std::size_t Lexer::word_end(std::size_t at, std::size_t limit) const {
    std::size_t end = at;
    while (end < text_.size() && end - at < limit && is_word_part(text_[end])) ++end;
    return end;
}

// Behind the closing quote; doubled quotes do not close.
std::size_t Lexer::quoted_end(std::size_t at, char quote) const {
    for (std::size_t p = at + 1; p < text_.size(); ++p) {
        if (text_[p] != quote) continue;
        if (peek(p + 1) != quote) return p + 1;
        ++p;
    }
    return none;
}

// Behind the bracket that closes the one at `at`; an apostrophe makes the next character plain.
std::size_t Lexer::bracket_end(std::size_t at) const {
    std::size_t depth = 0;
    for (std::size_t p = at; p < text_.size(); ++p) {
        switch (text_[p]) {
            case '[':
                ++depth;
                break;
            case ']':
                if (--depth == 0) return p + 1;
                break;
            case '\'':
                ++p;
                break;
            default:
                break;
        }
    }
    return none;
}

// Behind the "!" of a sheet that starts here, or `at` itself.
std::size_t Lexer::prefix_end(std::size_t at) const {
    std::size_t p = at;
    if (peek(p) == '!') return p + 1;  // any sheet, in names of old workbooks
    if (peek(p) == '\'') {
        p = quoted_end(p, '\'');
        return p != none && peek(p) == '!' ? p + 1 : at;
    }
    const bool external = peek(p) == '[';
    if (external) {
        do ++p;
        while (p < text_.size() && text_[p] != ']' && text_[p] != '[');
        if (peek(p) != ']') return at;
        ++p;
        if (starts_with_ignoring_case(text_.substr(p), lost_reference)) return p;
    }
    const std::size_t end = word_end(p, longest_sheet);
    if (end == p && !external) return at;
    if (peek(end) == '!') return end + 1;
    std::size_t second = end + 1;
    if (peek(end) == ':') {
        // Cells, columns and rows in front of ":" are no sheets: those are quoted.
        Reference reference;
        if (!external && (match_a1(text_.substr(p, end - p), reference) > 0)) return at;
        const std::size_t last = word_end(second, longest_sheet);
        return last > second && peek(last) == '!' ? last + 1 : at;
    }
    if (peek(end) == '|' && is_word_start(peek(p))) {  // another program's data: server|topic!item
        second = peek(second) == '\'' ? quoted_end(second, '\'') : word_end(second);
        if (second != none && peek(second) == '!') return second + 1;
    }
    return at;
}

std::size_t Lexer::number_end(std::size_t at) const {
    std::size_t p = at;
    while (is_digit(peek(p))) ++p;
    bool digits = p > at;
    if (peek(p) == '.') {
        const std::size_t fraction = ++p;
        while (is_digit(peek(p))) ++p;
        digits = digits || p > fraction;
    }
    if (!digits) return at;
    if (to_upper(peek(p)) == 'E') {
        std::size_t exponent = p + 1;
        if (peek(exponent) == '+' || peek(exponent) == '-') ++exponent;
        if (is_digit(peek(exponent))) {
            while (is_digit(peek(exponent))) ++exponent;
            p = exponent;
        }
    }
    return p;
}

std::size_t Lexer::match_reference(std::size_t at, Reference& reference) const {
    const std::string_view rest = text_.substr(at);
    return notation_ == Notation::a1 ? match_a1(rest, reference) : match_r1c1(rest, reference);
}

// A deleted sheet leaves its cells and names behind: #REF!A1, #REF!#REF!, #REF!Rate are one error each.
std::size_t Lexer::lost_end(std::size_t at, std::size_t end) const {
    if (!equal_ignoring_case(text_.substr(at, end - at), lost_reference)) return end;
    Reference lost;
    // In either notation: what is lost stays as it is when the formula is converted.
    for (const std::size_t length : {match_a1(text_.substr(end), lost), match_r1c1(text_.substr(end), lost)})
        if (length > 0) return end + length;
    if (starts_with_ignoring_case(text_.substr(end), lost_reference)) return end + lost_reference.size();
    return is_word_start(peek(end)) ? word_end(end) : end;
}

bool Lexer::starts_operand(std::size_t at) const {
    if (at >= text_.size()) return false;
    const char c = text_[at];
    return is_word_part(c) || c == '$' || c == '\'' || c == '"' || c == '(' || c == '[' || c == '{' || c == '#' ||
           c == '@' || c == '!';
}

Token Lexer::next() {
    if (at_ >= text_.size()) return token(TokenKind::end, at_, after_operand_);
    const char c = text_[at_];
    if (at_ == 0 && c == '=') return token(TokenKind::start, 1, false);
    if (is_blank(c)) {
        std::size_t end = at_;
        while (is_blank(peek(end))) ++end;
        const bool intersects = after_operand_ && starts_operand(end);
        return token(intersects ? TokenKind::intersection : TokenKind::whitespace, end, after_operand_ && !intersects);
    }
    if (c == '"') {
        const std::size_t end = quoted_end(at_, '"');
        return end == none ? token(TokenKind::invalid, text_.size(), true) : token(TokenKind::string, end, true);
    }
    if (c == '#' && !after_operand_) {
        const std::size_t length = error_length(text_.substr(at_));
        return length == 0 ? token(TokenKind::invalid, at_ + 1, true) : operand();
    }
    if (is_word_part(c) || c == '$' || c == '\'' || c == '[' || c == '!') return operand();
    return sign();
}

Token Lexer::sign() {
    const char c = text_[at_];
    const char following = peek(at_ + 1);
    switch (c) {
        case '(':
            return token(TokenKind::open, at_ + 1, false);
        case ')':
            return token(TokenKind::close, at_ + 1, true);
        case '{':
            return token(TokenKind::open_brace, at_ + 1, false);
        case '}':
            return token(TokenKind::close_brace, at_ + 1, true);
        case ',':
            return token(TokenKind::comma, at_ + 1, false);
        case ';':
            return token(TokenKind::semicolon, at_ + 1, false);
        case ':':
            return token(TokenKind::range, at_ + 1, false);
        case '@':
            return token(TokenKind::prefix, at_ + 1, false);
        case '%':
        case '#':
            return token(TokenKind::postfix, at_ + 1, true);
        case '+':
        case '-':
            return token(after_operand_ ? TokenKind::binary : TokenKind::prefix, at_ + 1, false);
        case '*':
        case '/':
        case '^':
        case '&':
        case '=':
            return token(TokenKind::binary, at_ + 1, false);
        case '<':
            return token(TokenKind::binary, at_ + (following == '=' || following == '>' ? 2U : 1U), false);
        case '>':
            return token(TokenKind::binary, at_ + (following == '=' ? 2U : 1U), false);
        default:
            return token(TokenKind::invalid, at_ + 1, true);
    }
}

// A reference, name, table, error or number, with the sheet in front of it.
Token Lexer::operand() {
    const std::size_t start = at_;
    // R[-1]C starts like a table; A1's own pairs (A:C, 3:7) start like sheets of a 3-D reference.
    Reference reference;
    if (const std::size_t length = match_reference(start, reference); length > 0) {
        Token result = token(TokenKind::reference, start + length, true);
        result.reference = reference;
        return result;
    }
    const std::size_t body = prefix_end(start);
    if (body == start) return word(start);
    Token result = word(body);
    result.prefix = body - start;
    return result;
}

// The operand from its body on; the token still starts at the sheet.
Token Lexer::word(std::size_t body) {
    const bool has_prefix = body > at_;
    const char c = peek(body);
    if (has_prefix) {
        Reference reference;
        if (const std::size_t length = match_reference(body, reference); length > 0) {
            Token result = token(TokenKind::reference, body + length, true);
            result.reference = reference;
            return result;
        }
        if (c == '\'') {  // an item of another program's data
            const std::size_t end = quoted_end(body, '\'');
            return end == none ? token(TokenKind::invalid, text_.size(), true) : token(TokenKind::name, end, true);
        }
    }
    if (c == '#') {
        const std::size_t end = body + error_length(text_.substr(body));
        if (end == body) return token(TokenKind::invalid, body + 1, true);
        return token(TokenKind::error, lost_end(body, end), true);
    }
    if (c == '\'') {
        const std::size_t end = quoted_end(body, '\'');
        return token(TokenKind::invalid, end == none ? text_.size() : end, true);
    }
    if (!has_prefix && (is_digit(c) || c == '.')) {
        const std::size_t end = number_end(body);
        return end == body ? token(TokenKind::invalid, body + 1, true) : token(TokenKind::number, end, true);
    }
    std::size_t end = is_word_start(c) ? word_end(body) : body;
    if (peek(end) == '[') {
        const std::size_t close = bracket_end(end);
        return close == none ? token(TokenKind::invalid, text_.size(), true)
                             : token(TokenKind::structured, close, true);
    }
    if (end == body) return token(TokenKind::invalid, has_prefix ? body : body + 1, true);
    if (peek(end) == '(') return token(TokenKind::function, end, false);
    const std::string_view letters = text_.substr(body, end - body);
    const bool truth = !has_prefix && (equal_ignoring_case(letters, "TRUE") || equal_ignoring_case(letters, "FALSE"));
    return token(truth ? TokenKind::boolean : TokenKind::name, end, true);
}

}  // namespace kestrune::formula
