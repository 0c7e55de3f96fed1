#include "host/xlsx/XmlCharacters.h"

#include <charconv>
#include <optional>

namespace kestrune::host {
namespace {

std::optional<std::string_view> entity_for(char character) {
    switch (character) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        default:
            return std::nullopt;
    }
}

// The character that "&...;" at the start of text stands for, its length in `length`; 0 when there is none.
char32_t reference(std::string_view text, std::size_t& length) {
    const auto semicolon = text.substr(0, 12).find(';');
    if (semicolon == std::string_view::npos) return 0;
    length = semicolon + 1;
    const auto name = text.substr(1, semicolon - 1);
    if (name == "amp") return U'&';
    if (name == "lt") return U'<';
    if (name == "gt") return U'>';
    if (name == "quot") return U'"';
    if (name == "apos") return U'\'';
    if (name.size() < 2 || name[0] != '#') return 0;
    const bool hexadecimal = name[1] == 'x';
    const auto digits = name.substr(hexadecimal ? 2 : 1);
    std::uint32_t code = 0;
    const auto [end, fault] =
        std::from_chars(digits.data(), digits.data() + digits.size(), code, hexadecimal ? 16 : 10);
    if (fault != std::errc{} || end != digits.data() + digits.size() || code > 0x10FFFF) return 0;
    return code;
}

std::string resolve(std::string_view raw, bool attribute) {
    std::string out;
    out.reserve(raw.size());
    for (std::size_t at = 0; at < raw.size();) {
        const char c = raw[at];
        if (c == '&') {
            std::size_t length = 0;
            if (const char32_t character = reference(raw.substr(at), length); character != 0) {
                append_utf8(out, character);
                at += length;
                continue;
            }
        } else if (c == '\r') {
            out += attribute ? ' ' : '\n';
            at += raw.substr(at, 2) == "\r\n" ? 2 : 1;
            continue;
        } else if (attribute && (c == '\n' || c == '\t')) {
            out += ' ';
            ++at;
            continue;
        }
        out += c;
        ++at;
    }
    return out;
}

// The code of "_xHHHH_" at the start of text.
std::optional<std::uint32_t> xstring_escape(std::string_view text) {
    if (text.size() < 7 || text[0] != '_' || text[1] != 'x' || text[6] != '_') return std::nullopt;
    std::uint32_t code = 0;
    const auto [end, fault] = std::from_chars(text.data() + 2, text.data() + 6, code, 16);
    if (fault != std::errc{} || end != text.data() + 6) return std::nullopt;
    return code;
}

}  // namespace

void append_utf8(std::string& out, char32_t character) {
    const auto push = [&out](char32_t byte) { out += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        push(character);
    } else if (character < 0x800) {
        push(0xC0 | (character >> 6));
        push(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        push(0xE0 | (character >> 12));
        push(0x80 | ((character >> 6) & 0x3F));
        push(0x80 | (character & 0x3F));
    } else {
        push(0xF0 | (character >> 18));
        push(0x80 | ((character >> 12) & 0x3F));
        push(0x80 | ((character >> 6) & 0x3F));
        push(0x80 | (character & 0x3F));
    }
}

void append_escaped(std::string& out, std::string_view text) {
    for (const char c : text) {
        if (const auto entity = entity_for(c)) {
            out += *entity;
        } else {
            out += c;
        }
    }
}

void append_escaped_attribute(std::string& out, std::string_view text) {
    for (const char c : text) {
        if (const auto entity = entity_for(c)) {
            out += *entity;
        } else if (c == '"') {
            out += "&quot;";
        } else if (c == '\n') {
            out += "&#10;";
        } else if (c == '\r') {
            out += "&#13;";
        } else if (c == '\t') {
            out += "&#9;";
        } else {
            out += c;
        }
    }
}

std::string escaped_attribute(std::string_view text) {
    std::string out;
    append_escaped_attribute(out, text);
    return out;
}

std::string unescaped(std::string_view raw) { return resolve(raw, false); }
std::string unescaped_attribute(std::string_view raw) { return resolve(raw, true); }

std::string decode_xstring(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    std::size_t at = 0;
    while (true) {
        const auto next = text.find("_x", at);
        if (next == std::string_view::npos) break;
        out += text.substr(at, next - at);
        at = next;
        const auto code = xstring_escape(text.substr(at));
        const bool high = code && *code >= 0xD800 && *code < 0xDC00;
        if (high) {
            const auto low = xstring_escape(text.substr(at + 7));
            if (low && *low >= 0xDC00 && *low < 0xE000) {
                append_utf8(out, 0x10000 + ((*code - 0xD800) << 10) + (*low - 0xDC00));
                at += 14;
                continue;
            }
        }
        if (!code || (*code >= 0xD800 && *code < 0xE000)) {
            out += "_x";
            at += 2;
            continue;
        }
        append_utf8(out, *code);
        at += 7;
    }
    out += text.substr(at);
    return out;
}

std::string encode_xstring(std::string_view text) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto c = static_cast<unsigned char>(text[at]);
        if (c < 0x20 && c != '\n' && c != '\t') {
            out += "_x00";
            out += digits[c >> 4];
            out += digits[c & 15];
            out += '_';
        } else if (c == '_' && xstring_escape(text.substr(at))) {
            out += "_x005F_";
        } else if (c == 0xEF && (text.substr(at, 3) == "\xEF\xBF\xBE" || text.substr(at, 3) == "\xEF\xBF\xBF")) {
            out += text[at + 2] == '\xBE' ? "_xFFFE_" : "_xFFFF_";
            at += 2;
        } else {
            out += text[at];
        }
    }
    return out;
}

bool needs_preserve(std::string_view text) {
    if (text.empty()) return false;
    const auto white = [](char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; };
    return white(text.front()) || white(text.back()) || text.find('\n') != std::string_view::npos ||
           text.find('\t') != std::string_view::npos;
}

}  // namespace kestrune::host
