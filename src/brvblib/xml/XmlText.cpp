#include "brvblib/xml/XmlText.h"

#include <fmt/format.h>

#include <algorithm>

#include "automation/AutomationError.h"
#include "automation/Text.h"
#include "brvblib/xml/Utf.h"

namespace kestrune::brvblib {
namespace {

using automation::same_text;

[[noreturn]] void refuse(std::string_view what) {
    throw automation::AutomationError(automation::hresult::exception, "iXML", what);
}

constexpr bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

void skip_blanks(std::string_view& text) {
    while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
}

// Whether XML 1.0 can carry a character.
constexpr bool carried(char32_t c) {
    return c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c != 0xFFFE && c != 0xFFFF);
}

// The value of a pseudo-attribute of an XML declaration; empty when there is none.
std::string_view declared(std::string_view declaration, std::string_view name) {
    const std::size_t at = declaration.find(name);
    if (at == std::string_view::npos) return {};
    std::string_view rest = declaration.substr(at + name.size());
    skip_blanks(rest);
    if (!rest.starts_with('=')) return {};
    rest.remove_prefix(1);
    skip_blanks(rest);
    if (rest.empty() || (rest.front() != '"' && rest.front() != '\'')) return {};
    return rest.substr(1, rest.find(rest.front(), 1) - 1);
}

std::string decoded(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE")) return utf8_of_utf16(bytes.substr(2), false);
    if (bytes.starts_with("\xFE\xFF")) return utf8_of_utf16(bytes.substr(2), true);
    if (bytes.starts_with(std::string_view("<\0?\0", 4))) return utf8_of_utf16(bytes, false);
    if (bytes.starts_with(std::string_view("\0<\0?", 4))) return utf8_of_utf16(bytes, true);
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    std::string_view rest = bytes;
    while (!rest.empty()) {
        if (take_utf8(rest) == no_character) {
            const auto before = bytes.substr(0, bytes.size() - rest.size());
            refuse(fmt::format("line {}: is not UTF-8 text", 1 + std::ranges::count(before, '\n')));
        }
    }
    return std::string(bytes);
}

// Takes a construct off the front of a text when it begins as said; true when it did.
bool skip(std::string_view& text, std::string_view begin, std::string_view end) {
    if (!text.starts_with(begin)) return false;
    const std::size_t at = text.find(end, begin.size());
    if (at == std::string_view::npos) refuse(fmt::format("a {} is not closed", begin));
    text.remove_prefix(at + end.size());
    return true;
}

// Everything before the root element is comments and instructions, or the text is refused. A document type behind the
// root element is no XML and left to the parser.
void check_prolog(std::string_view text) {
    skip_blanks(text);
    while (skip(text, "<!--", "-->") || skip(text, "<?", "?>")) skip_blanks(text);
    if (text.empty()) refuse("is empty");
    if (text.starts_with("<!")) refuse("has a document type, which is not allowed here");
    if (!text.starts_with('<')) refuse("is not an XML document");
}

std::string escaped(std::string_view text, bool in_attribute) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const char32_t c = take_utf8(text);
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '\r':
                out += "&#13;";
                break;
            case '"':
                out += in_attribute ? "&quot;" : "\"";
                break;
            case '\n':
                out += in_attribute ? "&#10;" : "\n";
                break;
            case '\t':
                out += in_attribute ? "&#9;" : "\t";
                break;
            case no_character:
                append_utf8(out, 0xFFFD);
                break;
            default:
                if (carried(c)) append_utf8(out, c);
        }
    }
    return out;
}

}  // namespace

std::string xml_text(std::string_view bytes) {
    std::string text = decoded(bytes);
    if (text.find('\0') != std::string::npos) refuse("is not an XML document");
    std::string_view rest = text;
    if (rest.starts_with("<?xml") && rest.size() > 5 && is_blank(rest[5])) {
        const std::string_view declaration = rest.substr(0, rest.find("?>"));
        skip(rest, "<?xml", "?>");
        const std::string_view encoding = declared(declaration, "encoding");
        const bool known = encoding.empty() || same_text(encoding, "UTF-8") || same_text(encoding, "UTF-16") ||
                           same_text(encoding, "US-ASCII");
        if (!known) refuse(fmt::format("is encoded in {}, which is neither UTF-8 nor UTF-16", encoding));
        // The declaration's lines still count when the parser tells where something is wrong.
        const std::ptrdiff_t lines = std::ranges::count(declaration, '\n');
        text = std::string(static_cast<std::size_t>(lines), '\n') + std::string(rest);
    }
    check_prolog(text);
    return text;
}

std::string xml_content(std::string_view text) { return escaped(text, false); }

std::string xml_attribute(std::string_view text) { return escaped(text, true); }

bool is_xml_name(std::string_view text) {
    const auto letter = [](char c) { return (automation::lower(c) >= 'a' && automation::lower(c) <= 'z') || c == '_'; };
    if (text.empty() || !letter(text.front())) return false;
    return std::ranges::all_of(text,
                               [&](char c) { return letter(c) || (c >= '0' && c <= '9') || c == '.' || c == '-'; });
}

}  // namespace kestrune::brvblib
