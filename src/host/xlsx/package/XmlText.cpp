#include "host/xlsx/package/XmlText.h"

#include <cstdint>

#include "host/xlsx/PackageError.h"
#include "host/xlsx/package/PartName.h"

namespace kestrune::host {
namespace {

using namespace std::string_view_literals;

void append_utf8(std::string& text, std::uint32_t code) {
    const auto put = [&](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | code >> 6);
        put(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    }
}

// False when the text is not whole UTF-16.
bool from_utf16(std::string_view bytes, bool big_endian, std::string& text) {
    if (bytes.size() % 2 != 0) return false;
    const auto unit = [&](std::size_t at) {
        const auto first = static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at]));
        const auto second = static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + 1]));
        return big_endian ? first << 8 | second : second << 8 | first;
    };
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
        std::uint32_t code = unit(at);
        if (code >= 0xDC00 && code <= 0xDFFF) return false;
        if (code >= 0xD800 && code <= 0xDBFF) {
            at += 2;
            if (at >= bytes.size()) return false;
            const std::uint32_t low = unit(at);
            if (low < 0xDC00 || low > 0xDFFF) return false;
            code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
        }
        append_utf8(text, code);
    }
    return true;
}

// Where the encoding's name stands in the declaration; empty when there is none.
std::string_view declared_encoding(std::string_view text) {
    if (!text.starts_with("<?xml")) return {};
    const std::string_view declaration = text.substr(0, text.find("?>"));
    std::size_t at = declaration.find("encoding");
    if (at == std::string_view::npos) return {};
    at = declaration.find_first_of("'\"", at);
    if (at == std::string_view::npos) return {};
    const std::size_t end = declaration.find(declaration[at], at + 1);
    if (end == std::string_view::npos) return {};
    return declaration.substr(at + 1, end - at - 1);
}

}  // namespace

XmlText xml_text_of(std::string bytes, const std::string& file, std::string_view part) {
    XmlText xml;
    const std::string_view start = std::string_view(bytes).substr(0, 4);
    const bool marked_little = start.starts_with("\xFF\xFE"sv);
    const bool marked_big = start.starts_with("\xFE\xFF"sv);
    const bool little = marked_little || start == "<\0?\0"sv;
    const bool big = marked_big || start == "\0<\0?"sv;
    if (little || big) {
        xml.encoding = big ? XmlEncoding::Utf16BigEndian : XmlEncoding::Utf16LittleEndian;
        const std::size_t mark = marked_little || marked_big ? 2 : 0;
        if (!from_utf16(std::string_view(bytes).substr(mark), big, xml.text)) {
            throw PackageError(file, std::string(part), "is broken UTF-16 text");
        }
    } else {
        if (start.starts_with("\xEF\xBB\xBF"sv)) {
            xml.encoding = XmlEncoding::Utf8WithMark;
            bytes.erase(0, 3);
        }
        xml.text = std::move(bytes);
    }
    const std::string_view declared = declared_encoding(xml.text);
    const std::string name = lower_case(declared);
    if (name.empty() || name == "utf-8") return xml;
    if (name != "utf8" && name != "us-ascii" && !name.starts_with("utf-16")) {
        throw PackageError(file, std::string(part),
                           "is encoded as " + std::string(declared) + "; parts of a workbook are UTF-8 or UTF-16", 1);
    }
    // The text is UTF-8 by now, and parsers believe what it says of itself.
    xml.text.replace(static_cast<std::size_t>(declared.data() - xml.text.data()), declared.size(), "UTF-8");
    return xml;
}

}  // namespace kestrune::host
