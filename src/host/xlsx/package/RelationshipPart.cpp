#include "host/xlsx/package/RelationshipPart.h"

#include <fmt/format.h>

#include <set>
#include <utility>

#include "host/xlsx/package/XmlTree.h"

namespace kestrune::host {
namespace {

constexpr std::string_view Namespace = "http://schemas.openxmlformats.org/package/2006/relationships";

bool is_row(const pugi::xml_node& node) { return local_name(node.name()) == "Relationship"; }

}  // namespace

RelationshipPart::RelationshipPart() {
    document_.append_child("Relationships").append_attribute("xmlns") = Namespace.data();
}

RelationshipPart::RelationshipPart(pugi::xml_document document) : document_(std::move(document)) {}

std::vector<Relationship> RelationshipPart::rows() const {
    std::vector<Relationship> rows;
    for (const pugi::xml_node& node : document_.document_element().children()) {
        if (!is_row(node)) continue;
        Relationship row;
        row.id = node.attribute("Id").value();
        row.type = node.attribute("Type").value();
        row.written = node.attribute("Target").value();
        row.external = std::string_view(node.attribute("TargetMode").value()) == "External";
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string RelationshipPart::add(std::string_view type, std::string_view reference, bool external) {
    std::set<std::string> taken;
    for (Relationship& row : rows()) taken.insert(std::move(row.id));
    std::size_t number = taken.size() + 1;
    std::string id = fmt::format("rId{}", number);
    while (taken.contains(id)) id = fmt::format("rId{}", ++number);
    pugi::xml_node parent = document_.document_element();
    pugi::xml_node node = parent.append_child(sibling_prefixed(parent, "Relationship").c_str());
    node.append_attribute("Id") = id.c_str();
    node.append_attribute("Type") = std::string(type).c_str();
    node.append_attribute("Target") = std::string(reference).c_str();
    if (external) node.append_attribute("TargetMode") = "External";
    return id;
}

bool RelationshipPart::remove(std::string_view id) {
    pugi::xml_node parent = document_.document_element();
    for (const pugi::xml_node& node : parent.children()) {
        if (is_row(node) && node.attribute("Id").value() == id) return parent.remove_child(node);
    }
    return false;
}

std::string RelationshipPart::text() const { return write_small_part(document_); }

}  // namespace kestrune::host
