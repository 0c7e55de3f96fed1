#include "host/xlsx/ConditionalFormatXml.h"

#include <algorithm>

#include "host/xlsx/AreaText.h"
#include "host/xlsx/XmlCharacters.h"

namespace kestrune::host {
namespace {

ConditionalRule read_rule(const XmlElement& element) {
    ConditionalRule rule;
    rule.type = element.value("type");
    rule.operator_name = element.value("operator");
    rule.priority = static_cast<std::int32_t>(element.integer("priority"));
    rule.stop_if_true = element.flag("stopIfTrue");
    if (const auto differential = element.integer("dxfId", -1); differential >= 0)
        rule.differential = static_cast<std::uint32_t>(differential);
    for (auto child = element.first_child(); child; child = child.next()) {
        if (child.local() == "formula" || child.local() == "f") rule.formulas.push_back(child.text());
    }
    rule.source = element.source();
    return rule;
}

bool same_fields(const ConditionalRule& a, const ConditionalRule& b) {
    return a.type == b.type && a.operator_name == b.operator_name && a.formulas == b.formulas &&
           a.priority == b.priority && a.stop_if_true == b.stop_if_true && a.differential == b.differential;
}

void append_formula(std::string& out, std::string_view prefix, std::string_view formula) {
    out.append("<").append(prefix).append("formula>");
    append_escaped(out, formula);
    out.append("</").append(prefix).append("formula>");
}

void append_attribute(std::string& out, std::string_view name, std::string_view value) {
    out.append(" ").append(name).append("=\"");
    append_escaped_attribute(out, value);
    out += '"';
}

// A rule of the file with its changed fields written into its own XML, so that nothing else of it is lost.
std::string patched_rule(const ConditionalRule& rule) {
    const auto element = XmlElement::root(rule.source);
    TextEdits edits;
    edits.set_attribute(element, "type", rule.type);
    const auto optional = [&](std::string_view name, bool present, const std::string& value) {
        edits.set_attribute(element, name, present ? std::optional<std::string_view>(value) : std::nullopt);
    };
    const auto was = read_rule(element);
    optional("operator", !rule.operator_name.empty(), rule.operator_name);
    if (was.priority != rule.priority) optional("priority", true, std::to_string(rule.priority));
    if (was.stop_if_true != rule.stop_if_true) optional("stopIfTrue", rule.stop_if_true, "1");
    if (was.differential != rule.differential)
        optional("dxfId", rule.differential.has_value(), std::to_string(rule.differential.value_or(0)));
    if (was.formulas != rule.formulas) {
        std::size_t position = 0;
        std::size_t end = element.tag_end();
        for (auto child = element.first_child(); child; child = child.next()) {
            if (child.local() != "formula") continue;
            end = child.end();
            if (position >= rule.formulas.size()) {
                edits.remove(child.begin(), child.end() - child.begin());
            } else if (child.text() != rule.formulas[position]) {
                std::string text;
                append_escaped(text, rule.formulas[position]);
                edits.set_content(child, text);
            }
            ++position;
        }
        std::string more;
        for (; position < rule.formulas.size(); ++position)
            append_formula(more, element.prefix(), rule.formulas[position]);
        if (element.empty()) {
            edits.append_content(element, more);
        } else if (!more.empty()) {
            edits.insert(end, more);
        }
    }
    return edits.apply(rule.source);
}

void append_rule(std::string& out, std::string_view prefix, const ConditionalRule& rule) {
    if (!rule.source.empty()) {
        out += same_fields(read_rule(XmlElement::root(rule.source)), rule) ? rule.source : patched_rule(rule);
        return;
    }
    out.append("<").append(prefix).append("cfRule");
    append_attribute(out, "type", rule.type);
    if (rule.differential) append_attribute(out, "dxfId", std::to_string(*rule.differential));
    append_attribute(out, "priority", std::to_string(rule.priority));
    if (rule.stop_if_true) append_attribute(out, "stopIfTrue", "1");
    if (!rule.operator_name.empty()) append_attribute(out, "operator", rule.operator_name);
    if (rule.formulas.empty()) {
        out += "/>";
        return;
    }
    out += '>';
    for (const auto& formula : rule.formulas) append_formula(out, prefix, formula);
    out.append("</").append(prefix).append("cfRule>");
}

}  // namespace

std::optional<ConditionalFormat> read_conditional_format(const XmlElement& element) {
    const auto areas = parse_areas(element.value("sqref"));
    if (!areas) return std::nullopt;
    ConditionalFormat format;
    format.areas = *areas;
    format.pivot = element.flag("pivot");
    for (auto child = element.first_child(); child; child = child.next()) {
        if (child.local() == "cfRule") format.rules.push_back(read_rule(child));
    }
    return format;
}

std::optional<ConditionalFormat> read_extension_format(const XmlElement& element) {
    const auto place = element.child("sqref");
    const auto areas = parse_areas(place ? place.text() : std::string());
    if (!areas) return std::nullopt;
    ConditionalFormat format;
    format.areas = *areas;
    format.pivot = element.flag("pivot");
    format.extension = true;
    format.source = element.source();
    for (auto child = element.first_child(); child; child = child.next()) {
        if (child.local() == "cfRule") format.rules.push_back(read_rule(child));
    }
    return format;
}

XmlElement extension_formats(const XmlElement& extension_list) {
    for (auto extension = extension_list.first_child(); extension; extension = extension.next()) {
        if (const auto formats = extension.child("conditionalFormattings")) return formats;
    }
    return {};
}

bool same_origin(const ConditionalFormat& in_file, const ConditionalFormat& format) {
    if (in_file.extension != format.extension) return false;
    if (in_file.extension) return in_file.source == format.source;
    // A format keeps at least one of its rules, or it would be gone.
    return std::any_of(format.rules.begin(), format.rules.end(), [&](const ConditionalRule& rule) {
        return !rule.source.empty() && std::any_of(in_file.rules.begin(), in_file.rules.end(),
                                                   [&](const auto& other) { return other.source == rule.source; });
    });
}

void edit_conditional_format(TextEdits& edits, const XmlElement& element, const ConditionalFormat& format) {
    const auto was = read_conditional_format(element);
    if (!was || was->areas != format.areas) edits.set_attribute(element, "sqref", areas_text(format.areas));
    const bool same_rules =
        was && std::equal(was->rules.begin(), was->rules.end(), format.rules.begin(), format.rules.end(),
                          [](const auto& a, const auto& b) { return a.source == b.source && same_fields(a, b); });
    if (same_rules) return;
    std::string rules;
    for (const auto& rule : format.rules) append_rule(rules, element.prefix(), rule);
    // Whatever else the element holds, an extension list for one, stands behind the rules and stays.
    std::size_t first = element.content_end();
    std::size_t last = first;
    for (auto child = element.first_child(); child; child = child.next()) {
        if (child.local() != "cfRule") continue;
        first = std::min(first, child.begin());
        last = child.end();
    }
    if (element.empty()) {
        edits.append_content(element, rules);
    } else {
        edits.replace(first, last - first, rules);
    }
}

void edit_extension_format(TextEdits& edits, const XmlElement& element, const ConditionalFormat& format) {
    const auto was = read_extension_format(element);
    if (was && was->areas == format.areas) return;
    if (const auto place = element.child("sqref")) edits.set_content(place, areas_text(format.areas));
}

void append_conditional_format(std::string& out, std::string_view prefix, const ConditionalFormat& format) {
    out.append("<").append(prefix).append("conditionalFormatting");
    if (format.pivot) append_attribute(out, "pivot", "1");
    append_attribute(out, "sqref", areas_text(format.areas));
    out += '>';
    for (const auto& rule : format.rules) append_rule(out, prefix, rule);
    out.append("</").append(prefix).append("conditionalFormatting>");
}

}  // namespace kestrune::host
