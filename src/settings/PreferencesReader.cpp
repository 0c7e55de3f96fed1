#include "settings/PreferencesReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "automation/Conversion.h"
#include "automation/Text.h"
#include "settings/DefaultCycles.h"
#include "settings/Fields.h"
#include "settings/PreferencesFormat.h"

namespace kestrune::settings {

using automation::AutomationError;
using automation::ObjectRef;
using automation::Value;
using styles::cLongToggle;
using styles::cStyles;
using styles::cStyleToggle;

namespace {

// Files of earlier versions, which stay readable.
struct EarlierFiles {
    std::string_view field;
    std::string_view earlier_name = {};  // what they call it
    bool lack_it = false;                // the default stays
    std::string_view empty_means = {};   // what an element without content stands for
};
constexpr auto earlier_files = std::to_array<EarlierFiles>({
    {.field = "WksLinkColor", .earlier_name = "LinkColor"},
    {.field = "WkbLinkColor", .lack_it = true},
    {.field = "PartialInputColor", .lack_it = true},
    {.field = "Text", .empty_means = "True"},
});
constexpr EarlierFiles nothing_special{};

const EarlierFiles& earlier(std::string_view field) {
    const auto* row = std::ranges::find(earlier_files, field, &EarlierFiles::field);
    return row == earlier_files.end() ? nothing_special : *row;
}

[[noreturn]] void missing(std::string_view name, std::string_view under) {
    throw AutomationError(automation::hresult::exception, fmt::format("{}/{}", under, name), "is missing");
}

bool is_blank(const ObjectRef& node) {
    return automation::without_white_space(automation::to_text(automation::get(*node, "text"))).empty();
}

styles::LongToggleRef default_cycle(NumericCycle field) {
    const auto row = std::ranges::find(default_numeric_cycles(), field, &DefaultNumericCycle::field);
    return std::make_shared<cLongToggle>(std::string(row->display_name), row->steps);
}

}  // namespace

std::vector<PreferencesReader::Element> PreferencesReader::children(std::string_view name, const Element& under) const {
    const Value held = library_.xml_children(name, under.node);
    automation::Object& list = automation::to_required_object(held);
    const std::int32_t length = automation::to_integer(automation::get(list, "Length"));
    std::vector<Element> elements;
    for (std::int32_t i = 0; i < length; ++i) {
        elements.push_back({automation::to_object(automation::get(list, "Item", {i})),
                            fmt::format("{}/{} {}", under.name, name, i + 1)});
    }
    return elements;
}

PreferencesReader::Element PreferencesReader::find(std::string_view name, const Element& under) const {
    // Not by looking anywhere below: every cycle has an element "Styles" as well.
    const Value list = library_.xml_children(name, under.node);
    return {automation::to_object(automation::get(automation::to_required_object(list), "Item", {0})),
            fmt::format("{}/{}", under.name, name)};
}

PreferencesReader::Element PreferencesReader::element(std::string_view name, const Element& under) const {
    Element found = find(name, under);
    if (!found.node) missing(name, under.name);
    return found;
}

// What a leaf holds; Empty when an earlier file lacks it.
Value PreferencesReader::leaf(std::string_view name, const Element& under) const {
    const EarlierFiles& rule = earlier(name);
    ObjectRef node = library_.xml_find(name, under.node);
    if (!node && !rule.earlier_name.empty()) node = library_.xml_find(rule.earlier_name, under.node);
    if (!node && rule.lack_it) return {};
    if (!node) missing(name, under.name);
    if (!rule.empty_means.empty() && is_blank(node)) return rule.empty_means;
    return automation::get(*node, "nodeTypedValue");
}

namespace {

// Runs a reading; its failure names the element.
template <class Reading>
void naming(const std::string& name, Reading&& reading) {
    try {
        reading();
    } catch (const AutomationError& error) {
        if (error.member() == name) throw;
        throw AutomationError(error.code(), name, error.description());
    }
}

}  // namespace

template <class Content>
void PreferencesReader::take_leaf(std::string_view name, const Element& under, Content& content) const {
    naming(fmt::format("{}/{}", under.name, name), [&] { take(content, leaf(name, under), cStyles()); });
}

template <class Record>
void PreferencesReader::leaves(const Element& under, Record& record, const cStyles& library) const {
    for (const auto& field : fields<Record>()) {
        naming(fmt::format("{}/{}", under.name, field.name), [&] {
            const Value value = leaf(field.name, under);
            if (!value.is(Value::Kind::Empty)) take(field, record, value, library);
        });
    }
}

styles::StylesRef PreferencesReader::style_library(const Element& settings) const {
    auto library = std::make_shared<cStyles>();
    for (Element& from : children(style_element, element(styles_element, settings))) {
        styles::StyleFields style;
        take_leaf("FriendlyName", from, style.FriendlyName);
        from.name = fmt::format("the style '{}'", style.FriendlyName);
        leaves(from, style, *library);
        if (!library->Add(std::make_shared<styles::cStyle>(std::move(style)))) {
            trace_.skipped(fmt::format("{}: is there already", from.name));
        }
    }
    return library;
}

std::vector<double> PreferencesReader::numbers(std::string_view name, std::string_view item,
                                               const Element& under) const {
    std::vector<double> values;
    for (const Element& one : children(item, element(name, under))) {
        naming(one.name, [&] {
            double value = 0;
            take(value, automation::get(*one.node, "nodeTypedValue"), cStyles());
            values.push_back(value);
        });
    }
    return values;
}

styles::LongToggleRef PreferencesReader::numeric_cycle(const Element& from) const {
    auto toggle = std::make_shared<cLongToggle>();
    take_leaf(name_element, from, toggle->Name);
    take_leaf(access_level_element, from, toggle->AccessLevel);
    toggle->Settings = numbers(steps_element, step_element, from);
    toggle->LookFors = numbers(recognised_element, recognised_step_element, from);
    return toggle;
}

styles::StyleToggleRef PreferencesReader::style_cycle(const Element& from, const cStyles& library) const {
    auto toggle = std::make_shared<cStyleToggle>();
    take_leaf(name_element, from, toggle->Name);
    take_leaf(access_level_element, from, toggle->AccessLevel);
    for (const Element& step : children(style_element, element(styles_element, from))) {
        const std::string name = automation::to_text(automation::get(*step.node, "nodeTypedValue"));
        // Neither a style that is not there nor one that the cycle has already can be a step.
        if (!toggle->Styles->Add(library.Item(name))) {
            trace_.skipped(fmt::format("{}: '{}' is left out", step.name, name));
        }
    }
    return toggle;
}

std::shared_ptr<cUserSettings> PreferencesReader::read() const {
    auto settings = std::make_shared<cUserSettings>();
    static_cast<core::AutoColorSettings&>(*settings) = defaults_;
    const Element from{library_.xml_find(settings_element), std::string(settings_element)};
    if (!from.node) missing(settings_element, root_element);

    settings->Styles = style_library(from);
    leaves(from, *settings, *settings->Styles);
    for_each_group(*settings, [&](std::string_view name, auto& group, auto) {
        leaves(element(name, from), group, *settings->Styles);
    });
    for (std::size_t i = 0; i < numeric_cycle_count; ++i) {
        const auto field = static_cast<NumericCycle>(i);
        const Element cycle = find(numeric_cycle_names[i], from);
        if (!cycle.node && field != NumericCycle::RightIndentToggle) missing(numeric_cycle_names[i], from.name);
        // Earlier versions did not indent from the right.
        settings->set_cycle(field, cycle.node ? numeric_cycle(cycle) : default_cycle(field));
    }
    for (std::size_t i = 0; i < style_cycle_count; ++i) {
        settings->set_cycle(static_cast<StyleCycle>(i),
                            style_cycle(element(style_cycle_names[i], from), *settings->Styles));
    }
    return settings;
}

}  // namespace kestrune::settings
