#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::brvblib {

class XmlElement;
using XmlElementRef = std::shared_ptr<const XmlElement>;

// An element of a document, which it keeps alive. Names are compared as they stand.
class XmlElement {
  public:
    XmlElement() = default;
    XmlElement(const XmlElement&) = delete;
    XmlElement& operator=(const XmlElement&) = delete;
    virtual ~XmlElement() = default;

    [[nodiscard]] virtual std::string name() const = 0;
    // All the text within, white space as it stands.
    [[nodiscard]] virtual std::string text() const = 0;
    // Nothing when there is no such attribute.
    [[nodiscard]] virtual std::optional<std::string> attribute(std::string_view name) const = 0;
    // The first child element of a name; the first element of a name below, in document order. Null when there is none.
    [[nodiscard]] virtual XmlElementRef child(std::string_view name) const = 0;
    [[nodiscard]] virtual XmlElementRef descendant(std::string_view name) const = 0;
    [[nodiscard]] virtual std::vector<XmlElementRef> children(std::string_view name) const = 0;
};

// Turns XML into a tree of elements.
class XmlParser {
  public:
    virtual ~XmlParser() = default;

    // The root element of a text without an XML declaration or a document type. Fails with an AutomationError whose
    // description says what is wrong and, where it is known, in which line; with class-not-registered when the parser
    // is not installed.
    [[nodiscard]] virtual XmlElementRef parse(std::string_view text) const = 0;
};

}  // namespace kestrune::brvblib
