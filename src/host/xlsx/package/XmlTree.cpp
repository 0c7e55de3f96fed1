#include "host/xlsx/package/XmlTree.h"

#include <algorithm>

#include "host/xlsx/PackageError.h"

namespace kestrune::host {
namespace {

struct TextWriter : pugi::xml_writer {
    void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
    std::string text;
};

[[noreturn]] void fail(std::string_view text, std::size_t offset, const std::string& message, const std::string& file,
                       std::string_view part) {
    const std::string_view before = text.substr(0, offset);
    const auto line = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1;
    const std::size_t line_start = before.rfind('\n') == std::string_view::npos ? 0 : before.rfind('\n') + 1;
    throw PackageError(file, std::string(part), message, line, before.size() - line_start + 1);
}

}  // namespace

pugi::xml_document parse_xml_tree(std::string_view text, const std::string& file, std::string_view part) {
    // pugixml takes a zero byte for the end of the text.
    if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos) {
        fail(text, zero, "is broken XML: a zero byte", file, part);
    }
    pugi::xml_document document;
    const pugi::xml_parse_result result =
        document.load_buffer(text.data(), text.size(), pugi::parse_full | pugi::parse_ws_pcdata, pugi::encoding_utf8);
    if (!result) {
        std::string what = result.description();
        what.front() = static_cast<char>(what.front() | 0x20);
        fail(text, std::min(static_cast<std::size_t>(result.offset), text.size()), "is broken XML: " + what, file,
             part);
    }
    std::size_t roots = 0;
    for (const pugi::xml_node& node : document.children()) {
        const auto at = static_cast<std::size_t>(std::max<std::ptrdiff_t>(node.offset_debug(), 0));
        if (node.type() == pugi::node_doctype) {
            fail(text, at, "has a document type declaration, which workbooks may not have", file, part);
        }
        if (node.type() == pugi::node_element && ++roots > 1) {
            fail(text, at, "is broken XML: a second root element", file, part);
        }
    }
    return document;
}

std::string write_small_part(const pugi::xml_document& document) {
    TextWriter writer;
    if (document.first_child().type() != pugi::node_declaration) {
        writer.text = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n";
    }
    writer.text += write_xml_fragment(document);
    return std::move(writer.text);
}

std::string write_xml_fragment(const pugi::xml_document& document) {
    TextWriter writer;
    document.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return std::move(writer.text);
}

std::string_view local_name(std::string_view name) {
    const std::size_t colon = name.rfind(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string sibling_prefixed(const pugi::xml_node& parent, std::string_view name) {
    const std::string_view whole = parent.name();
    return std::string(whole.substr(0, whole.size() - local_name(whole).size())) + std::string(name);
}

}  // namespace kestrune::host
