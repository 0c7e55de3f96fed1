#include "brvblib/xml/XmlWriter.h"

#include <fmt/format.h>

#include "automation/AutomationError.h"
#include "brvblib/xml/TypedValue.h"
#include "brvblib/xml/XmlText.h"

namespace kestrune::brvblib {
namespace {

constexpr std::string_view line_end = "\r\n";

[[noreturn]] void refuse(std::string_view operation, std::string_view what) {
    throw automation::AutomationError(automation::hresult::exception, fmt::format("iXML.{}", operation), what);
}

void check_name(std::string_view operation, std::string_view name) {
    if (!is_xml_name(name)) refuse(operation, fmt::format("'{}' cannot be the name of an element", name));
}

}  // namespace

XmlWriter::XmlWriter(std::string_view root, std::string_view version, std::string_view identifier) {
    check_name("StartDocument", root);
    text_ = fmt::format("<{} xmlns:dt=\"{}\" version=\"{}\" id=\"{}\">", root, data_types_namespace,
                        xml_attribute(version), xml_attribute(identifier));
    open_.emplace_back(root);
}

void XmlWriter::begin_line() {
    text_ += line_end;
    text_.append(2 * open_.size(), ' ');
}

void XmlWriter::start_element(std::string_view name) {
    check_name("StartElement", name);
    if (open_.empty()) refuse("StartElement", "the document is closed");
    begin_line();
    text_ += fmt::format("<{}>", name);
    open_.emplace_back(name);
}

void XmlWriter::leaf(std::string_view name, const automation::Value& value) {
    check_name("WriteLeaf", name);
    if (open_.empty()) refuse("WriteLeaf", "the document is closed");
    const TypedText typed = typed_text(value);
    begin_line();
    const std::string type = typed.type.empty() ? "" : fmt::format(" {}=\"{}\"", data_type_attribute, typed.type);
    text_ += fmt::format("<{}{}>{}</{}>", name, type, xml_content(typed.text), name);
}

void XmlWriter::end_element(std::string_view name) {
    if (open_.empty() || open_.back() != name) {
        refuse("EndElement", open_.empty() ? std::string("the document is closed")
                                           : fmt::format("the open element is '{}', not '{}'", open_.back(), name));
    }
    // An element without children closes on its own line.
    const bool empty = text_.ends_with(fmt::format("<{}>", name));
    open_.pop_back();
    if (!empty) begin_line();
    text_ += fmt::format("</{}>", name);
}

std::string XmlWriter::text() const {
    if (open_.size() > 1) refuse("Save", fmt::format("the element '{}' is not ended", open_.back()));
    if (open_.empty()) return text_;
    return fmt::format("{}{}</{}>", text_, line_end, open_.front());
}

std::string xml_file(std::string_view document) {
    return fmt::format("<?xml version=\"1.0\" encoding=\"UTF-8\"?>{}{}{}", line_end, document,
                       document.ends_with('\n') ? "" : line_end);
}

}  // namespace kestrune::brvblib
