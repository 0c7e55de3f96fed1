#include "brvblib/iXML.h"

#include <fmt/format.h>

#include <utility>

#include "automation/AutomationError.h"
#include "automation/Text.h"
#include "brvblib/xml/XmlFile.h"
#include "brvblib/xml/XmlNodes.h"
#include "brvblib/xml/XmlText.h"

namespace kestrune::brvblib {
namespace {

using automation::AutomationError;
using automation::MemberTable;
using automation::method;
using automation::ObjectRef;
using automation::Value;

[[noreturn]] void refuse(std::string_view member, std::string_view what) {
    throw AutomationError(automation::hresult::exception, member, what);
}

void check_name(std::string_view member, const std::string& name) {
    // A name is part of a query that a parser runs.
    if (!is_xml_name(name)) refuse(member, fmt::format("'{}' is no name of an element", name));
}

const XmlElement& element_of(const Value& node) {
    const auto* own = dynamic_cast<const XmlNode*>(&automation::to_required_object(node));
    if (!own) {
        throw AutomationError(automation::hresult::type_mismatch, "iXML", "the object is no node of an XML document");
    }
    return own->element();
}

// What is wrong with a file, in one line; what files say names theirs already.
std::string naming(const std::string& path, std::string_view what) {
    const std::string prefix = path + ": ";
    if (what.starts_with(prefix)) what.remove_prefix(prefix.size());
    return prefix + automation::one_line(what);
}

XmlElementRef first(std::string_view name, const XmlElement& under) {
    XmlElementRef child = under.child(name);
    return child ? child : under.descendant(name);
}

}  // namespace

void iXML::clear() {
    writer_.reset();
    loaded_.clear();
    root_.reset();
    version_.clear();
    last_error_.clear();
}

ObjectRef iXML::load(const std::string& path, const std::string& identifier, const std::string& name,
                     const std::optional<std::string>& version) {
    clear();
    try {
        XmlDocument document = read_xml_file(library_->files(), library_->xml(), path, identifier, name, version);
        loaded_ = std::move(document.text);
        root_ = std::move(document.root);
        version_ = std::move(document.version);
    } catch (const AutomationError& error) {
        last_error_ = naming(path, error.description());
        // Nothing is known about the file then.
        if (error.code() == automation::hresult::class_not_registered) {
            throw AutomationError(error.code(), "iXML.Load", last_error_);
        }
    }
    return XmlNode::of(root_);
}

void iXML::start_document(const std::string& root, const std::string& version, const std::string& identifier) {
    XmlWriter writer(root, version, identifier);
    clear();
    writer_ = std::move(writer);
    version_ = version;
}

XmlWriter& iXML::writer(std::string_view operation) {
    if (!writer_) refuse(fmt::format("iXML.{}", operation), "no document was started");
    root_.reset();
    return *writer_;
}

void iXML::start_element(const std::string& name) { writer("StartElement").start_element(name); }

void iXML::write_leaf(const std::string& name, const Value& value) { writer("WriteLeaf").leaf(name, value); }

void iXML::end_element(const std::string& name) { writer("EndElement").end_element(name); }

std::string iXML::text() const {
    if (writer_) return writer_->text();
    if (loaded_.empty()) refuse("iXML", "there is no document");
    return loaded_;
}

XmlElementRef iXML::root() {
    if (!root_) root_ = library_->xml().parse(text());
    return root_;
}

ObjectRef iXML::find_node(const std::string& name, const Value& under) {
    check_name("iXML.FindNode", name);
    if (!under.is(Value::Kind::Missing) && automation::to_object(under))
        return XmlNode::of(first(name, element_of(under)));
    const XmlElementRef top = root();
    return XmlNode::of(top->name() == name ? top : first(name, *top));
}

ObjectRef iXML::child_nodes(const std::string& name, const ObjectRef& under) {
    check_name("iXML.ChildNodes", name);
    return std::make_shared<XmlNodeList>(element_of(under).children(name));
}

bool iXML::save(const std::string& path) {
    last_error_.clear();
    try {
        // Nothing leaves that could not be loaded again.
        static_cast<void>(root());
        library_->files().write(path, xml_file(text()));
        return true;
    } catch (const AutomationError& error) {
        last_error_ = naming(path, error.description());
        return false;
    }
}

const MemberTable& iXML::members() {
    static constexpr auto rows = automation::member_rows(
        method<&iXML::clear>("Clear", 1), method<&iXML::load>("Load", 2, "Path, Identifier, Name, [Version]"),
        method<&iXML::start_document>("StartDocument", 3, "Root, Version, Identifier"),
        method<&iXML::start_element>("StartElement", 4, "Name"),
        method<&iXML::write_leaf>("WriteLeaf", 5, "Name, Value"), method<&iXML::end_element>("EndElement", 6, "Name"),
        method<&iXML::find_node>("FindNode", 7, "Name, [Under]"),
        method<&iXML::child_nodes>("ChildNodes", 8, "Name, Under"), method<&iXML::save>("Save", 9, "Path"),
        automation::read_only<&iXML::version>("Version", 10),
        automation::read_only<&iXML::last_error>("LastError", 11));
    static constexpr MemberTable table("iXML", rows);
    return table;
}

}  // namespace kestrune::brvblib
