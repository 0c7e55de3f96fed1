#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "automation/MemberTable.h"
#include "brvblib/xml/XmlParser.h"

namespace kestrune::brvblib {

// An element as clients see it, with the members of MSXML's nodes under their names and ids. Values are read by their
// data types here rather than by a parser, so that a number comes back to the last bit on every system.
class XmlNode : public automation::Served<XmlNode> {
  public:
    explicit XmlNode(XmlElementRef element) : element_(std::move(element)) {}
    static const automation::MemberTable& members();

    // Nothing for no element.
    static automation::ObjectRef of(XmlElementRef element);
    [[nodiscard]] const XmlElement& element() const { return *element_; }

  private:
    [[nodiscard]] std::string node_name() const { return element_->name(); }
    [[nodiscard]] std::string text() const { return element_->text(); }
    // The value by the data type that the element says it has; type-mismatch when it holds no such value.
    [[nodiscard]] automation::Value typed_value() const;

    XmlElementRef element_;
};

// Some elements of a document, in its order.
class XmlNodeList : public automation::Served<XmlNodeList> {
  public:
    explicit XmlNodeList(std::vector<XmlElementRef> elements) : elements_(std::move(elements)) {}
    static const automation::MemberTable& members();

  private:
    // Counted from 0; Nothing outside.
    [[nodiscard]] automation::ObjectRef item(std::int32_t index) const;
    [[nodiscard]] std::int32_t length() const { return static_cast<std::int32_t>(elements_.size()); }

    std::vector<XmlElementRef> elements_;
};

}  // namespace kestrune::brvblib
