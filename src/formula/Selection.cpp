#include "formula/Selection.h"

#include <fmt/format.h>

#include <utility>

#include "formula/A1.h"
#include "formula/Characters.h"
#include "formula/Lexer.h"
#include "formula/SheetName.h"

namespace kestrune::formula {
namespace {

using Kind = SelectionError::Kind;

// What a corner of a reference is made of: 'c' for A1, 'l' for A, 'd' for 1, '\0' for none.
char take_corner(std::string_view text, std::size_t& at) {
    const auto take = [&](bool (*belongs)(char)) {
        if (at < text.size() && text[at] == '$') ++at;
        const std::size_t start = at;
        while (at < text.size() && belongs(text[at])) ++at;
        return at - start;
    };
    const std::size_t letters = take([](char c) { return is_letter(c); });
    const std::size_t digits = take([](char c) { return is_digit(c); });
    if (letters > 3 || letters + digits == 0) return '\0';
    return digits == 0 ? 'l' : letters == 0 ? 'd' : 'c';
}

// Whether the text has the form of a reference: then its only fault is its size.
bool looks_like_reference(std::string_view text) {
    std::size_t at = 0;
    const char first = take_corner(text, at);
    if (at == text.size()) return first == 'c';
    if (first == '\0' || text[at] != ':') return false;
    ++at;
    return take_corner(text, at) == first && at == text.size();
}

SelectionError not_a_reference(std::string_view text) {
    return {Kind::not_a_reference, fmt::format("\"{}\" is not a reference to cells", text)};
}

class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text), lexer_(text) {}

    std::variant<Selection, SelectionError> read() {
        Selection selection;
        for (;;) {
            Token token = next();
            if (token.kind != TokenKind::reference) return fault(token);
            if (token.prefix > 0) {
                SheetPrefix prefix = parse_sheet_prefix(token.sheet(text_));
                if (!prefix.book.empty())
                    return SelectionError{Kind::other_workbook,
                                          fmt::format("\"{}\" is in another workbook", token.text(text_))};
                if (prefix.first_sheet != prefix.last_sheet ||
                    (selection.sheet && !equal_ignoring_case(*selection.sheet, prefix.first_sheet)))
                    return SelectionError{Kind::several_sheets,
                                          fmt::format("\"{}\" names cells of more than one sheet", text_)};
                if (!selection.areas.empty() && !selection.sheet) return not_a_reference(text_);
                if (prefix.first_sheet.empty()) return not_a_reference(text_);
                if (!selection.sheet) selection.sheet = std::move(prefix.first_sheet);
            }
            selection.areas.push_back(area_of(token.reference));
            const Token following = next();
            if (following.kind == TokenKind::end) return selection;
            if (following.kind != TokenKind::comma) return fault(token);
        }
    }

  private:
    Token next() {
        Token token = lexer_.next();
        while (token.kind == TokenKind::whitespace) token = lexer_.next();
        return token;
    }

    SelectionError fault(const Token& token) const {
        const std::size_t end = std::min(text_.find(',', token.body()), text_.size());
        std::string_view part = text_.substr(token.body(), end - token.body());
        while (!part.empty() && is_blank(part.back())) part.remove_suffix(1);
        if (looks_like_reference(part)) return {Kind::outside_sheet, fmt::format("\"{}\" is outside the sheet", part)};
        return not_a_reference(part.empty() ? text_ : part);
    }

    std::string_view text_;
    Lexer lexer_;
};

}  // namespace

std::variant<Selection, SelectionError> parse_selection(std::string_view text) { return Reader(text).read(); }

std::string selection_text(const Selection& selection, bool absolute) {
    std::string out;
    for (const Area& area : selection.areas) {
        if (!out.empty()) out += ',';
        if (selection.sheet) out += quoted_sheet(*selection.sheet) + '!';
        out += area_text(area, {absolute, absolute});
    }
    return out;
}

}  // namespace kestrune::formula
