#include "number_format/FormatSpelling.h"

#include <algorithm>

#include "number_format/FormatParser.h"

namespace kestrune::number_format {
namespace {

constexpr std::string_view plain_signs = "()-+ ";

bool same_item(const Item& a, const Item& b) {
    return a.part == b.part && a.sign == b.sign && a.count == b.count && a.text == b.text;
}

bool same_meaning(std::string_view a, std::string_view b) {
    const ParsedFormat left = parse_format(a);
    const ParsedFormat right = parse_format(b);
    return left.error.empty() && right.error.empty() &&
           std::ranges::equal(left.sections, right.sections, [](const FormatSection& x, const FormatSection& y) {
               return std::ranges::equal(x.items, y.items, same_item);
           });
}

// The end of what is copied as it stands: a quoted text, a bracket, an escaped, padding or filling character.
std::size_t protected_end(std::string_view code, std::size_t at) {
    switch (code[at]) {
        case '"':
            return std::min(code.find('"', at + 1), code.size() - 1) + 1;
        case '[':
            return std::min(code.find(']', at + 1), code.size() - 1) + 1;
        case '\\':
        case '_':
        case '*':
            return std::min(at + 2, code.size());
        default:
            return at;
    }
}

// Whether a sign belongs to the exponent in front of it: E+00.
bool is_exponent_sign(std::string_view code, std::size_t at) {
    return at > 0 && (code[at - 1] == 'E' || code[at - 1] == 'e') && (code[at] == '+' || code[at] == '-');
}

}  // namespace

std::string object_model_spelling(std::string_view file_code) {
    const auto spell = [&](bool commas) {
        std::string out;
        for (std::size_t at = 0; at < file_code.size();) {
            if (file_code.substr(at, 3) == "\"$\"") {
                out += '$';
                at += 3;
                continue;
            }
            const std::size_t end = std::max(protected_end(file_code, at), at + 1);
            std::string_view piece = file_code.substr(at, end - at);
            const bool bare = piece.size() == 2 && piece[0] == '\\' &&
                              (plain_signs.find(piece[1]) != std::string_view::npos || (commas && piece[1] == ','));
            out += bare ? piece.substr(1) : piece;
            at = end;
        }
        return out;
    };
    // A comma is plain among dates and scales among digits.
    for (const bool commas : {true, false})
        if (std::string code = spell(commas); same_meaning(code, file_code)) return code;
    return std::string(file_code);
}

std::string file_spelling(std::string_view object_model_code) {
    const auto spell = [&](bool commas) {
        std::string out;
        for (std::size_t at = 0; at < object_model_code.size();) {
            const std::size_t end = protected_end(object_model_code, at);
            if (end > at) {
                out += object_model_code.substr(at, end - at);
                at = end;
                continue;
            }
            const char c = object_model_code[at];
            if (c == '$')
                out += "\"$\"";
            else if (plain_signs.find(c) != std::string_view::npos && !is_exponent_sign(object_model_code, at))
                (out += '\\') += c;
            else if (c == ',' && commas)
                out += "\\,";
            else
                out += c;
            ++at;
        }
        return out;
    };
    for (const bool commas : {true, false})
        if (std::string code = spell(commas); same_meaning(code, object_model_code)) return code;
    return std::string(object_model_code);
}

}  // namespace kestrune::number_format
