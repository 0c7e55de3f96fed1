#include "host/xlsx/TablesReading.h"

#include "formula/Selection.h"
#include "host/xlsx/XmlCharacters.h"
#include "host/xlsx/XmlElement.h"
#include "host/xlsx/XmlParser.h"

namespace kestrune::host {
namespace {

constexpr std::uint64_t largest_part = std::uint64_t{64} << 20;

std::optional<Table> read_table(const Package& package, const std::string& part) {
    const XmlText xml = package.read_xml(part, largest_part);
    check_xml(package, part, xml.text, "table");
    const auto root = XmlElement::root(xml.text);
    const auto parsed = formula::parse_selection(root.value("ref"));
    const auto* place = std::get_if<formula::Selection>(&parsed);
    if (!place || place->areas.size() != 1) return std::nullopt;
    Table table;
    table.name = root.value("displayName");
    table.all = place->areas.front();
    table.headers = root.integer("headerRowCount", 1) > 0;
    table.totals = root.integer("totalsRowCount", 0) > 0;
    const auto columns = root.child("tableColumns");
    for (auto column = columns ? columns.first_child() : XmlElement(); column; column = column.next()) {
        if (column.local() == "tableColumn") table.columns.push_back(column.value("name"));
    }
    return table;
}

// A link's target as a path: files are written as file URIs, or from the workbook's folder.
std::string path_of(std::string target, const std::string& folder) {
    constexpr std::string_view scheme = "file:///";
    if (target.starts_with(scheme)) return target.substr(scheme.size());
    const bool absolute =
        target.find(':') != std::string::npos || target.starts_with('/') || target.starts_with("\\\\");
    if (absolute || folder.empty()) return target;
    return folder + (folder.find('\\') != std::string::npos ? '\\' : '/') + target;
}

}  // namespace

std::vector<Table> read_tables(const Package& package, const std::vector<std::string>& sheet_parts) {
    std::vector<Table> tables;
    for (std::size_t sheet = 0; sheet < sheet_parts.size(); ++sheet) {
        for (const Relationship& relationship : package.relationships(sheet_parts[sheet])) {
            if (!relationship.is("table") || relationship.external || !package.has(relationship.target)) continue;
            auto table = read_table(package, relationship.target);
            if (!table) continue;
            table->sheet = static_cast<std::int32_t>(sheet);
            tables.push_back(std::move(*table));
        }
    }
    return tables;
}

std::vector<std::string> read_external_links(const Package& package, const std::string& folder) {
    const std::string main = package.workbook_part();
    const XmlText xml = package.read_xml(main, std::uint64_t{256} << 20);
    const auto root = XmlElement::root(xml.text);
    const auto list = root.child("externalReferences");
    const auto relationships = package.relationships(main);
    std::vector<std::string> paths;
    for (auto element = list ? list.first_child() : XmlElement(); element; element = element.next()) {
        std::string& path = paths.emplace_back();
        const std::string id = relationship_id(element);
        for (const Relationship& link : relationships) {
            if (link.id != id || link.external || !package.has(link.target)) continue;
            for (const Relationship& target : package.relationships(link.target)) {
                if (target.is("externalLinkPath")) path = path_of(target.target, folder);
            }
        }
    }
    return paths;
}

}  // namespace kestrune::host
