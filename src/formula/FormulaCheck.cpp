#include "formula/FormulaCheck.h"

#include <fmt/format.h>

#include <vector>

#include "formula/Characters.h"
#include "formula/Lexer.h"

namespace kestrune::formula {
namespace {

constexpr std::size_t max_characters = 8192;
constexpr std::size_t max_text_characters = 255;
constexpr std::size_t max_arguments = 255;
constexpr std::size_t max_levels = 64;

std::size_t characters(std::string_view utf8) {
    std::size_t count = 0;
    for (const char c : utf8)
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) ++count;
    return count;
}

std::size_t text_characters(std::string_view literal) {
    std::size_t count = characters(literal) - 2;
    bool open = false;
    for (const char c : literal.substr(1, literal.size() - 2)) {
        open = c == '"' && !open;
        if (open) --count;  // the first of two quotes
    }
    return count;
}

enum class Group : unsigned char { whole, parentheses, call, array };

// An open bracket and what is known about its contents.
struct Frame {
    Group group = Group::whole;
    std::size_t offset = 0;
    bool wants_reference = false;  // stands where only a reference may
    bool all_references = true;    // nothing but references inside so far
    bool union_seen = false;
    std::size_t arguments = 1;
    std::size_t columns = 0;  // of an array's first row; 0 while it is open
    std::size_t column = 1;
};

class Checker {
  public:
    Checker(std::string_view text, Notation notation) : text_(text), lexer_(text, notation) {}

    std::optional<FormulaError> run() {
        if (text_.substr(text_.starts_with('=') ? 1 : 0).find_first_not_of(" \t\r\n") == std::string_view::npos)
            return FormulaError{0, "the formula is empty"};
        if (characters(text_) > max_characters) {
            fail(0, fmt::format("the formula is longer than {} characters", max_characters));
            return error_;
        }
        frames_.emplace_back();
        Token token;
        do {
            token = lexer_.next();
            take(token);
        } while (!error_ && token.kind != TokenKind::end);
        return error_;
    }

  private:
    Frame& frame() { return frames_.back(); }
    std::string shown(const Token& token) const { return std::string(token.text(text_).substr(0, 40)); }

    void fail(std::size_t offset, std::string message) {
        if (!error_) error_ = FormulaError{offset, std::move(message)};
    }

    void take(const Token& token) {
        if (frame().group == Group::array) return take_in_array(token);
        switch (token.kind) {
            case TokenKind::start:
            case TokenKind::whitespace:
                return;
            case TokenKind::string:
                if (text_characters(token.text(text_)) > max_text_characters)
                    fail(token.offset,
                         fmt::format("a text in a formula holds at most {} characters", max_text_characters));
                return take_operand(token, false);
            case TokenKind::number:
            case TokenKind::boolean:
                return take_operand(token, false);
            case TokenKind::error:
            case TokenKind::reference:
            case TokenKind::structured:
            case TokenKind::name:
                return take_operand(token, true);
            case TokenKind::function:
                expect_operand(token);
                function_ = true;
                return;
            case TokenKind::open:
                return take_open(token);
            case TokenKind::close:
                return take_close(token);
            case TokenKind::open_brace:
                expect_operand(token);
                refuse_value(token);
                frames_.push_back({Group::array, token.offset});
                return;
            case TokenKind::close_brace:
                return fail(token.offset, "'}' closes nothing");
            case TokenKind::comma:
                return take_comma(token);
            case TokenKind::semicolon:
                return fail(token.offset, "';' stands outside an array");
            case TokenKind::prefix:
                if (has_operand_) return missing_operator(token);
                if (text_[token.offset] != '@') refuse_value(token);
                operator_ = token.offset;
                dangling_ = true;
                return;
            case TokenKind::binary:
                expect_left(token);
                if (frame().union_seen) not_a_reference(token);
                frame().all_references = false;
                return take_operator(token, false);
            case TokenKind::postfix:
                return take_postfix(token);
            case TokenKind::range:
            case TokenKind::intersection:
                expect_left(token);
                if (!error_ && !is_reference_) not_a_reference(token);
                return take_operator(token, true);
            case TokenKind::invalid:
                return invalid(token);
            case TokenKind::end:
                return finish();
        }
    }

    void missing_operator(const Token& token) {
        fail(token.offset, fmt::format("an operator is missing in front of \"{}\"", shown(token)));
    }

    void not_a_reference(const Token& token) {
        fail(token.offset, token.kind == TokenKind::intersection
                               ? std::string("an operator is missing at the space")
                               : fmt::format("\"{}\" needs a reference on both sides", shown(token)));
    }

    void expect_operand(const Token& token) {
        if (has_operand_) missing_operator(token);
    }

    void expect_left(const Token& token) {
        if (!has_operand_) fail(token.offset, fmt::format("a value is missing in front of \"{}\"", shown(token)));
    }

    // A value that is no reference, where only a reference may stand.
    void refuse_value(const Token& token) {
        if (wants_reference_)
            fail(token.offset, fmt::format("\"{}\" stands where a reference is needed", shown(token)));
        frame().all_references = false;
    }

    void take_operand(const Token& token, bool is_reference) {
        expect_operand(token);
        if (!is_reference) refuse_value(token);
        done_with_operand(is_reference);
    }

    void done_with_operand(bool is_reference) {
        has_operand_ = true;
        is_reference_ = is_reference;
        wants_reference_ = frame().union_seen;
        dangling_ = false;
        called_ = false;
    }

    void take_operator(const Token& token, bool wants_reference) {
        has_operand_ = false;
        wants_reference_ = wants_reference;
        dangling_ = true;
        operator_ = token.offset;
    }

    void take_postfix(const Token& token) {
        expect_left(token);
        if (text_[token.offset] == '#') {
            if (!is_reference_) not_a_reference(token);
            return;
        }
        if (frame().union_seen) not_a_reference(token);
        frame().all_references = false;
        is_reference_ = false;
    }

    void take_open(const Token& token) {
        const bool again = has_operand_ && called_;  // LAMBDA(x,x+1)(2)
        const bool call = function_ || again;
        if (!again) expect_operand(token);
        if (call && ++calls_ > max_levels)
            fail(token.offset, fmt::format("functions are nested more than {} levels deep", max_levels));
        Frame opened{call ? Group::call : Group::parentheses, token.offset};
        opened.wants_reference = wants_reference_;
        frames_.push_back(opened);
        function_ = has_operand_ = wants_reference_ = dangling_ = false;
    }

    void take_close(const Token& token) {
        const Frame closed = frame();
        if (closed.group == Group::whole) return fail(token.offset, "')' closes nothing");
        if (dangling_) return missing_right();
        if (!has_operand_ && closed.group == Group::parentheses)
            return fail(token.offset, "the parentheses hold nothing");
        frames_.pop_back();
        const bool call = closed.group == Group::call;
        if (call) --calls_;
        if (!call && !closed.all_references) {
            if (closed.wants_reference) fail(closed.offset, "the parentheses stand where a reference is needed");
            frame().all_references = false;
        }
        done_with_operand(call || closed.all_references);
        called_ = call;
    }

    void take_comma(const Token& token) {
        if (dangling_) return missing_right();
        if (frame().group == Group::call) {
            if (++frame().arguments > max_arguments)
                fail(token.offset, fmt::format("a function takes at most {} arguments", max_arguments));
            has_operand_ = false;
            return;
        }
        // Elsewhere a comma joins areas: (A1,B2).
        expect_left(token);
        if (!error_ && !(is_reference_ && frame().all_references)) not_a_reference(token);
        frame().union_seen = true;
        take_operator(token, true);
    }

    void take_in_array(const Token& token) {
        Frame& array = frame();
        switch (token.kind) {
            case TokenKind::whitespace:
            case TokenKind::intersection:
                return;
            case TokenKind::number:
            case TokenKind::string:
            case TokenKind::boolean:
            case TokenKind::error:
                if (has_operand_) return missing_operator(token);
                if (array_sign_ && token.kind != TokenKind::number)
                    return fail(token.offset, "a sign stands in front of a number only");
                has_operand_ = true;
                array_sign_ = false;
                return;
            case TokenKind::prefix:
                if (has_operand_ || array_sign_ || text_[token.offset] == '@') return array_value(token);
                array_sign_ = true;
                return;
            case TokenKind::comma:
            case TokenKind::semicolon:
            case TokenKind::close_brace:
                if (!has_operand_ || array_sign_) return fail(token.offset, "a value is missing in the array");
                has_operand_ = false;
                if (token.kind == TokenKind::comma) {
                    ++array.column;
                    return;
                }
                if (array.columns != 0 && array.columns != array.column)
                    return fail(token.offset, "the rows of the array differ in length");
                array.columns = array.column;
                array.column = 1;
                if (token.kind == TokenKind::close_brace) {
                    frames_.pop_back();
                    done_with_operand(false);
                }
                return;
            case TokenKind::end:
                return fail(array.offset, "'{' is not closed");
            case TokenKind::invalid:
                return invalid(token);
            default:
                return array_value(token);
        }
    }

    void array_value(const Token& token) {
        fail(token.offset,
             fmt::format("an array holds numbers, texts, truth values and errors, not \"{}\"", shown(token)));
    }

    void missing_right() {
        fail(operator_, text_[operator_] == ' ' ? std::string("a reference is missing behind the space")
                                                : fmt::format("a value is missing behind \"{}\"", text_[operator_]));
    }

    void invalid(const Token& token) {
        const char c = text_[token.body() < text_.size() ? token.body() : token.offset];
        if (c == '"') return fail(token.offset, "the text is not closed with a quote");
        if (c == '\'') return fail(token.offset, "a name in apostrophes must be closed and be followed by '!'");
        if (token.text(text_).find('[') != std::string_view::npos) return fail(token.offset, "'[' is not closed");
        if (token.prefix > 0)
            return fail(token.offset, fmt::format("nothing follows the sheet \"{}\"", token.sheet(text_)));
        const auto byte = static_cast<unsigned char>(c);
        fail(token.offset, byte < 0x20 || byte == 0x7F ? fmt::format("the character {} has no place in a formula", byte)
                                                       : fmt::format("'{}' has no place here", c));
    }

    void finish() {
        if (frames_.size() > 1) return fail(frame().offset, "'(' is not closed");
        if (dangling_) return missing_right();
        if (!has_operand_) fail(text_.size(), "the formula is empty");
    }

    std::string_view text_;
    Lexer lexer_;
    std::vector<Frame> frames_;
    std::optional<FormulaError> error_;
    std::size_t calls_ = 0;
    std::size_t operator_ = 0;
    bool has_operand_ = false;      // a value stands to the left
    bool is_reference_ = false;     // and it may be a reference
    bool wants_reference_ = false;  // only a reference may follow
    bool dangling_ = false;         // an operator waits for its right side
    bool function_ = false;         // a function's word stands to the left
    bool called_ = false;           // the parenthesis to the left closed a call
    bool array_sign_ = false;
};

}  // namespace

std::optional<FormulaError> check_formula(std::string_view formula, Notation notation) {
    return Checker(formula, notation).run();
}

}  // namespace kestrune::formula
