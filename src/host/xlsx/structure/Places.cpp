#include "host/xlsx/structure/Places.h"

#include <algorithm>
#include <array>

#include "formula/A1.h"
#include "host/xlsx/AreaText.h"
#include "host/xlsx/package/XmlTree.h"

namespace kestrune::host {
namespace {

using formula::Area;

enum class PlaceKind : std::uint8_t { Areas, Formula };
enum class WhenGone : std::uint8_t { Remove, Keep };

struct Row {
    std::string_view element;
    std::string_view attribute;
    PlaceKind kind;
    WhenGone gone = WhenGone::Remove;
};

// Attributes that say where something lies on its own sheet (ECMA-376 part 1, clause 18.3.1, and clause 18.13).
constexpr auto attributes = std::to_array<Row>({
    {"dimension", "ref", PlaceKind::Areas, WhenGone::Keep},
    {"protectedRange", "sqref", PlaceKind::Areas},
    {"scenarios", "sqref", PlaceKind::Areas, WhenGone::Keep},
    {"inputCells", "r", PlaceKind::Areas},
    {"sortState", "ref", PlaceKind::Areas},
    {"sortCondition", "ref", PlaceKind::Areas},
    {"hyperlink", "ref", PlaceKind::Areas},
    {"cellWatch", "r", PlaceKind::Areas},
    {"ignoredError", "sqref", PlaceKind::Areas},
    {"cellSmartTags", "r", PlaceKind::Areas},
    {"webPublishItem", "sourceRef", PlaceKind::Areas},
    {"nsvFilter", "ref", PlaceKind::Areas},
    {"singleXmlCell", "r", PlaceKind::Areas},
    {"comment", "ref", PlaceKind::Areas},
    {"threadedComment", "ref", PlaceKind::Areas},
    {"controlPr", "linkedCell", PlaceKind::Formula, WhenGone::Keep},
    {"controlPr", "listFillRange", PlaceKind::Formula, WhenGone::Keep},
    {"formControlPr", "fmlaLink", PlaceKind::Formula, WhenGone::Keep},
    {"formControlPr", "fmlaRange", PlaceKind::Formula, WhenGone::Keep},
    {"formControlPr", "fmlaTxbx", PlaceKind::Formula, WhenGone::Keep},
    {"formControlPr", "fmlaGroup", PlaceKind::Formula, WhenGone::Keep},
    {"formControlPr", "fmlaPict", PlaceKind::Formula, WhenGone::Keep},
    {"sp", "textlink", PlaceKind::Formula, WhenGone::Keep},
});

// Elements whose text is a formula: of extensions (xm:f), charts (c:f), tables, and controls in VML.
constexpr auto formulas = std::to_array<std::string_view>(
    {"f", "calculatedColumnFormula", "totalsRowFormula", "FmlaLink", "FmlaRange", "FmlaTxbx", "FmlaGroup", "FmlaPict"});

constexpr auto hollow = std::to_array<std::string_view>({"dataValidations",
                                                         "hyperlinks",
                                                         "protectedRanges",
                                                         "ignoredErrors",
                                                         "cellWatches",
                                                         "rowBreaks",
                                                         "colBreaks",
                                                         "scenario",
                                                         "scenarios",
                                                         "sparklines",
                                                         "sparklineGroup",
                                                         "sparklineGroups",
                                                         "smartTags",
                                                         "cellSmartTags",
                                                         "conditionalFormattings",
                                                         "ext",
                                                         "extLst",
                                                         "sortState",
                                                         "webPublishItems",
                                                         "tableParts"});

template <std::size_t N>
bool among(const std::array<std::string_view, N>& names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

bool has_elements(pugi::xml_node node) {
    return std::ranges::any_of(node.children(),
                               [](pugi::xml_node child) { return child.type() == pugi::node_element; });
}

std::vector<pugi::xml_node> elements_of(pugi::xml_node node) {
    std::vector<pugi::xml_node> elements;
    for (const pugi::xml_node child : node.children())
        if (child.type() == pugi::node_element) elements.push_back(child);
    return elements;
}

// Whether an element points out of the workbook.
bool relationship_of(pugi::xml_node node) {
    return std::ranges::any_of(node.attributes(), [](pugi::xml_attribute attribute) {
        return std::string_view(attribute.name()).ends_with(":id");
    });
}

pugi::xml_node child_named(pugi::xml_node node, std::string_view name) {
    for (const pugi::xml_node child : node.children())
        if (local_name(child.name()) == name) return child;
    return {};
}

}  // namespace

Places::Places(const formula::Edit& edit, std::string_view sheet)
    : edit_(edit), sheet_(sheet), own_(!sheet.empty() && formula::means_edited_sheet({}, sheet, edit)) {}

void Places::set(pugi::xml_attribute attribute, const std::string& value) {
    if (attribute.value() == value) return;
    attribute.set_value(value.c_str());
    changed_ = true;
}

void Places::set_text(pugi::xml_node node, const std::string& value) {
    if (node.text().get() == value) return;
    node.text().set(value.c_str());
    changed_ = true;
}

void Places::remove(pugi::xml_node node) {
    gone_.push_back(node);
    changed_ = true;
}

bool Places::move_formula(pugi::xml_node node) {
    set_text(node, formula::adjust_for_edit(node.text().get(), sheet_, edit_));
    return true;
}

bool Places::move_formula(pugi::xml_attribute attribute) {
    if (attribute) set(attribute, formula::adjust_for_edit(attribute.value(), sheet_, edit_));
    return true;
}

bool Places::move_areas(pugi::xml_attribute attribute) {
    if (!own_ || !attribute) return true;
    const auto areas = parse_areas(attribute.value());
    if (!areas) return true;
    const auto left = formula::adjust_areas(*areas, edit_);
    if (left.empty() && !areas->empty()) return false;
    if (left != *areas) set(attribute, areas_text(left));
    return true;
}

std::optional<std::int32_t> Places::line(std::int32_t from_zero) const {
    std::int32_t first = from_zero + 1;
    std::int32_t last = first;
    if (!formula::adjust_span(first, last, edit_)) return std::nullopt;
    return first - 1;
}

void Places::move(pugi::xml_node node) {
    walk(node);
    for (pugi::xml_node each : gone_) each.parent().remove_child(each);
    if (!gone_.empty()) prune(node);
    gone_.clear();
}

void Places::walk(pugi::xml_node node) {
    if (node.type() == pugi::node_element)
        visit(node);
    else
        for (const pugi::xml_node child : elements_of(node)) walk(child);
}

void Places::visit(pugi::xml_node element) {
    const std::string_view name = local_name(element.name());
    if (name == "conditionalFormatting" || name == "dataValidation") return move_rule(element);
    if (name == "sparkline") return move_sparkline(element);
    if (name == "autoFilter") return move_filter(element);
    if (name == "brk") return move_break(element);
    if (name == "pane") move_pane(element);
    if (name == "dataRef") move_consolidation(element);
    if (name == "anchor") return move_control(element);
    bool lost = false;
    for (const Row& row : attributes) {
        if (row.element != name) continue;
        const pugi::xml_attribute attribute = element.attribute(std::string(row.attribute).c_str());
        if (!attribute) continue;
        const bool left = row.kind == PlaceKind::Formula ? move_formula(attribute) : move_areas(attribute);
        lost = lost || (!left && row.gone == WhenGone::Remove);
    }
    if (lost) return remove(element);
    if (among(formulas, name)) {
        if (!has_elements(element)) move_formula(element);
    } else if (name == "sqref" && !has_elements(element)) {
        // Of an extension on a sheet it is areas there, of a chart a formula.
        const auto areas = parse_areas(element.text().get());
        if (!areas) {
            move_formula(element);
        } else if (own_) {
            const auto left = formula::adjust_areas(*areas, edit_);
            if (left.empty()) return remove(element.parent());
            if (left != *areas) set_text(element, areas_text(left));
        }
    }
    for (const pugi::xml_node child : elements_of(element)) visit(child);
}

// Rules are written for the corner of their areas: the formulas come first, while these are as they were.
void Places::move_rule(pugi::xml_node element) {
    const pugi::xml_attribute attribute = element.attribute("sqref");
    const pugi::xml_node inside = child_named(element, "sqref");
    const auto areas = parse_areas(attribute ? attribute.value() : inside.text().get());
    if (!areas || areas->empty()) return;
    if (own_ && formula::adjust_areas(*areas, edit_).empty()) return remove(element);
    move_rule_formulas(element, *areas);
    if (attribute) {
        move_areas(attribute);
    } else if (own_) {
        const auto left = formula::adjust_areas(*areas, edit_);
        if (left != *areas) set_text(inside, areas_text(left));
    }
}

void Places::move_rule_formulas(pugi::xml_node element, const std::vector<Area>& areas) {
    for (const pugi::xml_node child : elements_of(element)) {
        const std::string_view name = local_name(child.name());
        const bool formula = name == "formula" || name == "formula1" || name == "formula2" || name == "f";
        if (formula && !has_elements(child)) {
            set_text(child, formula::adjust_rule_for_edit(child.text().get(), sheet_, areas, edit_));
        } else if (name == "cfvo") {
            const pugi::xml_attribute value = child.attribute("val");
            if (value) set(value, formula::adjust_rule_for_edit(value.value(), sheet_, areas, edit_));
            move_rule_formulas(child, areas);
        } else if (name != "sqref") {
            move_rule_formulas(child, areas);
        }
    }
}

void Places::move_sparkline(pugi::xml_node element) {
    if (const pugi::xml_node data = child_named(element, "f")) move_formula(data);
    const pugi::xml_node place = child_named(element, "sqref");
    const auto areas = parse_areas(place.text().get());
    if (!own_ || !areas) return;
    const auto left = formula::adjust_areas(*areas, edit_);
    if (left.empty()) return remove(element);
    if (left != *areas) set_text(place, areas_text(left));
}

// A break belongs to the row below it, or the column at its right; its id is the one before.
void Places::move_break(pugi::xml_node element) {
    const bool of_rows = local_name(element.parent().name()) == "rowBreaks";
    if (!own_ || of_rows != edit_.of_rows()) return;
    const pugi::xml_attribute id = element.attribute("id");
    const auto moved = line(id.as_int());
    if (!moved || *moved == 0) return remove(element);
    set(id, std::to_string(*moved));
}

// The frozen rows and columns stay those that they were; one remains when all of them go.
void Places::move_pane(pugi::xml_node element) {
    if (!own_ || !std::string_view(element.attribute("state").value()).starts_with("frozen")) return;
    const pugi::xml_attribute split = element.attribute(edit_.of_rows() ? "ySplit" : "xSplit");
    std::int32_t first = 1;
    std::int32_t last = split.as_int();
    if (!split || last < 1) return;
    const std::int32_t before = last;
    if (!formula::adjust_span(first, last, edit_)) last = 1;
    set(split, std::to_string(last));
    const pugi::xml_attribute corner = element.attribute("topLeftCell");
    auto at = formula::parse_cell_reference(corner.value());
    if (!at || last == before) return;
    std::int32_t& line = edit_.of_rows() ? at->row : at->column;
    line = std::max(line + last - before, last + 1);
    set(corner, formula::cell_text(*at));
}

// The place of a control or an embedded object, in rows and columns counted from 0.
void Places::move_control(pugi::xml_node element) {
    if (!own_ || !element.attribute("moveWithCells").as_bool()) return;
    const auto marker = [&](std::string_view end) {
        return child_named(child_named(element, end), edit_.of_rows() ? "row" : "col");
    };
    const pugi::xml_node from = marker("from");
    const pugi::xml_node to = marker("to");
    const auto moved = [&](pugi::xml_node node) { return line(node.text().as_int()).value_or(edit_.first - 1); };
    const std::int32_t by = moved(from) - from.text().as_int();
    const bool sizes = element.attribute("sizeWithCells").as_bool();
    const std::int32_t end = sizes ? moved(to) : to.text().as_int() + by;
    set_text(from, std::to_string(from.text().as_int() + by));
    set_text(to, std::to_string(end));
}

// A filter without its headers filters nothing; its columns are counted from its own first one.
void Places::move_filter(pugi::xml_node element) {
    if (!own_) return;
    const auto area = parse_area(element.attribute("ref").value());
    if (!area) return;
    const auto left = formula::adjust_area(*area, edit_);
    if (!left || !formula::adjust_area({area->first_row, 1, area->first_row, formula::max_columns}, edit_))
        return remove(element);
    for (const pugi::xml_node child : elements_of(element)) {
        const pugi::xml_attribute id = child.attribute("colId");
        if (local_name(child.name()) != "filterColumn") {
            visit(child);
        } else if (!edit_.of_rows()) {
            const auto column = line(area->first_column - 1 + id.as_int());
            if (!column)
                remove(child);
            else
                set(id, std::to_string(*column + 1 - left->first_column));
        }
    }
    move_areas(element.attribute("ref"));
}

void Places::move_consolidation(pugi::xml_node element) {
    const pugi::xml_attribute ref = element.attribute("ref");
    const auto area = parse_area(ref.value());
    if (!area || relationship_of(element) ||
        !formula::means_edited_sheet({}, element.attribute("sheet").value(), edit_))
        return;
    if (const auto left = formula::adjust_area(*area, edit_))
        set(ref, formula::area_text(*left));
    else
        remove(element);
}

bool Places::means_nothing(pugi::xml_node node) {
    return among(hollow, local_name(node.name())) && !has_elements(node);
}

void Places::prune(pugi::xml_node node) {
    for (const pugi::xml_node child : elements_of(node)) {
        prune(child);
        if (means_nothing(child)) node.remove_child(child);
    }
    for (const char* count : {"count", "manualBreakCount"}) {
        pugi::xml_attribute attribute = node.attribute(count);
        if (attribute && among(hollow, local_name(node.name())))
            attribute.set_value(static_cast<unsigned>(elements_of(node).size()));
    }
}

}  // namespace kestrune::host
