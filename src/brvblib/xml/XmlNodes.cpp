#include "brvblib/xml/XmlNodes.h"

#include "brvblib/xml/TypedValue.h"

namespace kestrune::brvblib {

using automation::MemberTable;
using automation::read_only;

automation::ObjectRef XmlNode::of(XmlElementRef element) {
    if (!element) return nullptr;
    return std::make_shared<XmlNode>(std::move(element));
}

automation::Value XmlNode::typed_value() const {
    return brvblib::typed_value(element_->attribute(data_type_attribute).value_or(""), element_->text());
}

const MemberTable& XmlNode::members() {
    static constexpr auto rows =
        automation::member_rows(read_only<&XmlNode::node_name>("nodeName", 2), read_only<&XmlNode::text>("text", 24),
                                read_only<&XmlNode::typed_value>("nodeTypedValue", 25));
    static constexpr MemberTable table("IXMLDOMElement", rows);
    return table;
}

automation::ObjectRef XmlNodeList::item(std::int32_t index) const {
    if (index < 0 || index >= length()) return nullptr;
    return XmlNode::of(elements_[static_cast<std::size_t>(index)]);
}

const MemberTable& XmlNodeList::members() {
    static constexpr auto rows = automation::member_rows(read_only<&XmlNodeList::item>("Item", 0, "Index"),
                                                         read_only<&XmlNodeList::length>("Length", 74));
    static constexpr MemberTable table("IXMLDOMNodeList", rows);
    return table;
}

}  // namespace kestrune::brvblib
