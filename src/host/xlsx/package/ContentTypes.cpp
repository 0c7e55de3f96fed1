#include "host/xlsx/package/ContentTypes.h"

#include <utility>

#include "host/xlsx/package/PartName.h"
#include "host/xlsx/package/XmlTree.h"

namespace kestrune::host {
namespace {

constexpr std::string_view Namespace = "http://schemas.openxmlformats.org/package/2006/content-types";

pugi::xml_node append_row(pugi::xml_node types, std::string_view element, const char* key, const std::string& value,
                          std::string_view content_type) {
    pugi::xml_node row = types.append_child(sibling_prefixed(types, element).c_str());
    row.append_attribute(key) = value.c_str();
    row.append_attribute("ContentType") = std::string(content_type).c_str();
    return row;
}

pugi::xml_document new_document() {
    pugi::xml_document document;
    pugi::xml_node types = document.append_child("Types");
    types.append_attribute("xmlns") = Namespace.data();
    append_row(types, "Default", "Extension", "rels", RelationshipsContentType);
    append_row(types, "Default", "Extension", "xml", "application/xml");
    return document;
}

// The type without its parameters and the white space around it.
std::string bare_type(std::string_view type) {
    type = type.substr(0, type.find(';'));
    const std::size_t start = type.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos) return {};
    return std::string(type.substr(start, type.find_last_not_of(" \t\r\n") + 1 - start));
}

}  // namespace

ContentTypes::ContentTypes() : ContentTypes(new_document()) {}

ContentTypes::ContentTypes(pugi::xml_document document) : document_(std::move(document)) { read(); }

void ContentTypes::read() {
    by_part_.clear();
    by_extension_.clear();
    for (const pugi::xml_node& row : document_.document_element().children()) {
        const std::string_view element = local_name(row.name());
        std::string type = bare_type(row.attribute("ContentType").value());
        if (element == "Override") {
            const std::string_view name = row.attribute("PartName").value();
            by_part_.emplace(part_key(percent_decoded(name)), type);
            by_part_.emplace(part_key(name), std::move(type));
        } else if (element == "Default") {
            by_extension_.emplace(lower_case(row.attribute("Extension").value()), std::move(type));
        }
    }
}

std::string ContentTypes::of(std::string_view part) const {
    if (const auto own = by_part_.find(part_key(part)); own != by_part_.end()) return own->second;
    const auto shared = by_extension_.find(extension_of(part));
    return shared == by_extension_.end() ? std::string() : shared->second;
}

bool ContentTypes::set(std::string_view part, std::string_view content_type) {
    if (lower_case(of(part)) == lower_case(content_type)) return false;
    remove(part);
    if (lower_case(of(part)) != lower_case(content_type)) {
        pugi::xml_node types = document_.document_element();
        if (content_type == RelationshipsContentType && !by_extension_.contains("rels")) {
            append_row(types, "Default", "Extension", "rels", content_type);
        } else {
            append_row(types, "Override", "PartName", "/" + std::string(part), content_type);
        }
    }
    read();
    return true;
}

bool ContentTypes::remove(std::string_view part) {
    const std::string key = part_key(part);
    bool removed = false;
    pugi::xml_node types = document_.document_element();
    for (pugi::xml_node row = types.first_child(); row;) {
        const pugi::xml_node next = row.next_sibling();
        const std::string_view name = row.attribute("PartName").value();
        if (local_name(row.name()) == "Override" && (part_key(name) == key || part_key(percent_decoded(name)) == key)) {
            types.remove_child(row);
            removed = true;
        }
        row = next;
    }
    if (removed) read();
    return removed;
}

std::string ContentTypes::text() const { return write_small_part(document_); }

}  // namespace kestrune::host
