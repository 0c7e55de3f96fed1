#include "host/xlsx/WorkbookPart.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <unordered_set>

#include "host/xlsx/SheetLayout.h"
#include "host/xlsx/XmlCharacters.h"
#include "host/xlsx/XmlParser.h"

namespace kestrune::host {
namespace {

int workbook_order(std::string_view local_name) {
    static constexpr auto order = std::to_array<std::string_view>(
        {"fileVersion", "fileSharing", "workbookPr", "workbookProtection", "bookViews", "sheets", "functionGroups",
         "externalReferences", "definedNames", "calcPr", "oleSize", "customWorkbookViews", "pivotCaches", "smartTagPr",
         "smartTagTypes", "webPublishing", "fileRecoveryPr", "webPublishObjects", "extLst"});
    const auto found = std::find(order.begin(), order.end(), local_name);
    return found == order.end() ? -1 : static_cast<int>(found - order.begin());
}

Visibility visibility_of(const std::string& state) {
    if (state == "hidden") return Visibility::Hidden;
    if (state == "veryHidden") return Visibility::VeryHidden;
    return Visibility::Visible;
}

DefinedName read_name(const XmlElement& element) {
    DefinedName name;
    name.name = element.value("name");
    name.refers_to = element.text();
    if (element.attribute("localSheetId")) name.sheet = static_cast<std::int32_t>(element.integer("localSheetId"));
    name.hidden = element.flag("hidden");
    name.comment = element.value("comment");
    name.source = element.source();
    return name;
}

// Of two relationships with one id nobody can tell which is meant: the calculation chain's might be the sheet's.
void check_ids(const Package& package, const std::string& part, const std::vector<Relationship>& relationships) {
    std::unordered_set<std::string_view> ids;
    for (const Relationship& row : relationships) {
        if (!ids.insert(row.id).second)
            throw package.error(part, fmt::format("has two relationships with the id \"{}\"", row.id));
    }
}

SheetKind kind_of(const Relationship& relationship) {
    if (relationship.is("worksheet")) return SheetKind::Worksheet;
    return relationship.is("chartsheet") ? SheetKind::Chartsheet : SheetKind::Other;
}

void append_name(std::string& out, std::string_view prefix, const DefinedName& name) {
    out.append("<").append(prefix).append("definedName name=\"");
    append_escaped_attribute(out, name.name);
    out += '"';
    if (!name.comment.empty()) {
        out += " comment=\"";
        append_escaped_attribute(out, name.comment);
        out += '"';
    }
    if (name.sheet) out.append(" localSheetId=\"").append(std::to_string(*name.sheet)).append("\"");
    if (name.hidden) out += " hidden=\"1\"";
    out += '>';
    append_escaped(out, name.refers_to);
    out.append("</").append(prefix).append("definedName>");
}

// A name of the file with what changed of it, and all its other attributes.
std::string patched_name(const DefinedName& name) {
    const auto element = XmlElement::root(name.source);
    const auto was = read_name(element);
    TextEdits edits;
    if (was.name != name.name) edits.set_attribute(element, "name", name.name);
    const auto optional = [&](std::string_view key, bool changed, bool present, const std::string& value) {
        if (changed) edits.set_attribute(element, key, present ? std::optional<std::string_view>(value) : std::nullopt);
    };
    optional("localSheetId", was.sheet != name.sheet, name.sheet.has_value(), std::to_string(name.sheet.value_or(0)));
    optional("hidden", was.hidden != name.hidden, name.hidden, "1");
    optional("comment", was.comment != name.comment, !name.comment.empty(), name.comment);
    if (was.refers_to != name.refers_to) {
        std::string text;
        append_escaped(text, name.refers_to);
        edits.set_content(element, text);
    }
    return edits.apply(name.source);
}

void write_names(TextEdits& edits, const XmlElement& root, const Workbook& book) {
    std::string entries;
    for (const auto& name : book.names) {
        if (name.source.empty()) {
            append_name(entries, root.prefix(), name);
        } else {
            entries += patched_name(name);
        }
    }
    const auto list = root.child("definedNames");
    if (list && entries.empty()) {
        edits.remove(list.begin(), list.end() - list.begin());
    } else if (list) {
        edits.set_content(list, entries);
    } else if (!entries.empty()) {
        insert_child(edits, root, "definedNames",
                     fmt::format("<{0}definedNames>{1}</{0}definedNames>", root.prefix(), entries), workbook_order);
    }
}

void write_recalculation(TextEdits& edits, const XmlElement& root) {
    if (const auto calculation = root.child("calcPr")) {
        edits.set_attribute(calculation, "fullCalcOnLoad", "1");
    } else {
        insert_child(edits, root, "calcPr", fmt::format("<{}calcPr fullCalcOnLoad=\"1\"/>", root.prefix()),
                     workbook_order);
    }
}

void write_active_sheet(TextEdits& edits, const XmlElement& root, std::int32_t active) {
    const auto value = std::to_string(active);
    const auto views = root.child("bookViews");
    if (const auto view = views ? views.first_child() : XmlElement()) {
        edits.set_attribute(view, "activeTab", active == 0 ? std::nullopt : std::optional<std::string_view>(value));
    } else if (!views && active != 0) {
        insert_child(
            edits, root, "bookViews",
            fmt::format("<{0}bookViews><{0}workbookView activeTab=\"{1}\"/></{0}bookViews>", root.prefix(), active),
            workbook_order);
    }
}

}  // namespace

std::vector<std::string> read_workbook_part(const Package& package, Workbook& book) {
    const std::string part = package.workbook_part();
    const XmlText xml = package.read_xml(part, std::uint64_t{256} << 20);
    check_xml(package, part, xml.text, "workbook");
    const auto root = XmlElement::root(xml.text);
    if (const auto properties = root.child("workbookPr")) book.date1904 = properties.flag("date1904");
    if (const auto protection = root.child("workbookProtection"))
        book.structure_protected = protection.flag("lockStructure");

    const auto relationships = package.relationships(part);
    check_ids(package, part, relationships);
    std::vector<std::string> parts;
    std::unordered_set<std::string> taken;
    const auto sheets = root.child("sheets");
    for (auto element = sheets ? sheets.first_child() : XmlElement(); element; element = element.next()) {
        if (element.local() != "sheet") continue;
        const auto name = element.value("name");
        const auto id = relationship_id(element);
        const auto place = place_of(xml.text, element.begin());
        const auto found = std::find_if(relationships.begin(), relationships.end(),
                                        [&](const Relationship& row) { return row.id == id && !row.external; });
        if (found == relationships.end())
            throw package.error(part, fmt::format("tells no part for the sheet \"{}\"", name), place.line,
                                place.column);
        if (!package.has(found->target))
            throw package.error(found->target, fmt::format("holds the sheet \"{}\", and it is missing", name));
        // What is written for one of them would be lost with the other.
        if (!taken.insert(found->target).second)
            throw package.error(found->target, fmt::format("holds the sheet \"{}\" and another one", name));
        if (book.sheet(name) != nullptr)
            throw package.error(part, fmt::format("has two sheets named \"{}\"", name), place.line, place.column);
        book.add_sheet(name, kind_of(*found)).visibility = visibility_of(element.value("state"));
        parts.push_back(found->target);
    }
    if (parts.empty()) throw package.error(part, "has no sheets");

    if (const auto names = root.child("definedNames")) {
        for (auto element = names.first_child(); element; element = element.next()) {
            if (element.local() == "definedName") book.names.push_back(read_name(element));
        }
    }
    const auto views = root.child("bookViews");
    if (const auto view = views ? views.first_child() : XmlElement()) {
        const auto active = view.integer("activeTab");
        if (active > 0 && active < static_cast<std::int64_t>(parts.size()))
            book.active_sheet = static_cast<std::int32_t>(active);
    }
    return parts;
}

bool workbook_part_changed(const Workbook& book) {
    return book.names_changed || book.recalculate_on_load || book.active_sheet_changed;
}

std::string write_workbook_part(std::string text, const Workbook& book) {
    open_root(text);
    const auto root = XmlElement::root(text);
    TextEdits edits;
    if (book.active_sheet_changed) write_active_sheet(edits, root, book.active_sheet);
    if (book.names_changed) write_names(edits, root, book);
    if (book.recalculate_on_load) write_recalculation(edits, root);
    return edits.apply(text);
}

std::string with_tab_selected(const std::string& text, bool selected) {
    TextEdits edits;
    const auto root = XmlElement::root(text);
    for (auto child = root.first_child(); child && child.local() != "sheetData"; child = child.next()) {
        if (child.local() != "sheetViews") continue;
        for (auto view = child.first_child(); view; view = view.next()) {
            if (view.flag("tabSelected") != selected)
                edits.set_attribute(view, "tabSelected",
                                    selected ? std::optional<std::string_view>("1") : std::nullopt);
        }
    }
    return edits.apply(text);
}

}  // namespace kestrune::host
