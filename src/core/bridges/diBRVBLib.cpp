#include "core/bridges/diBRVBLib.h"

#include "automation/Conversion.h"
#include "core/bridges/Product.h"

namespace kestrune::core {

using automation::to_boolean;
using automation::to_text;

namespace {

std::string dialog_title(std::string_view title) { return std::string(product_title).append(" -- ").append(title); }

std::optional<std::string> chosen(const automation::Value& path) {
    if (path.is(automation::Value::Kind::Empty)) return std::nullopt;
    return to_text(path);
}

AdjustedNumberFormat adjusted(const automation::Value& answer) {
    const automation::Array* array = answer.array();
    if (!array || array->elements().size() != 2) {
        throw automation::AutomationError(automation::hresult::type_mismatch, "the adjusted number format",
                                          "is no outcome and format");
    }
    return {static_cast<AdjustedNumberFormat::Outcome>(automation::to_integer(array->elements()[0])),
            to_text(array->elements()[1])};
}

}  // namespace

void diBRVBLib::set_application(const automation::ObjectRef& application) const {
    automation::call(automation::to_required_object(iPublic()), "SetApplication", {application});
}

std::string diBRVBLib::constant(std::int32_t index) const { return to_text(call(Const, "Text", {index})); }

automation::ObjectRef diBRVBLib::hot_keys() const {
    auto registry = automation::to_object(automation::get(automation::to_required_object(iHotKeys()), "Registry"));
    automation::to_required_object(registry);
    return registry;
}

void diBRVBLib::register_hot_keys(const automation::ObjectRef& callback) const {
    automation::call(*hot_keys(), "RegisterCallback", {client_name, callback});
}

void diBRVBLib::set_hot_key_product(std::string_view text) const { automation::put(*hot_keys(), "Product", text); }

void diBRVBLib::set_hot_key_macros(std::string_view workbook, std::string_view module) const {
    automation::call(*hot_keys(), "SetMacros", {client_name, workbook, module});
}

void diBRVBLib::add_hot_key_macro(const HotKeyMacro& macro) const {
    automation::call(*hot_keys(), "AddMacro",
                     {client_name, macro.macro, macro.name, macro.description, macro.key, macro.group});
}

void diBRVBLib::bind_hot_keys() const { automation::call(*hot_keys(), "Bind"); }

void diBRVBLib::show_hot_key_manager() const { automation::call(*hot_keys(), "ShowManager"); }

std::vector<std::pair<std::string, std::string>> diBRVBLib::hot_key_texts() const {
    constexpr std::int32_t client = 1;
    constexpr std::int32_t command = 3;
    constexpr std::int32_t key = 7;
    const automation::Value answer = automation::get(*hot_keys(), "Table");
    const automation::Array* table = answer.array();
    std::vector<std::pair<std::string, std::string>> keys;
    const std::int32_t rows = table ? table->bound(0).count : 0;
    for (std::int32_t row = 1; row <= rows; ++row) {
        if (to_text(table->at(row, client)) != client_name || to_text(table->at(row, key)).empty()) continue;
        keys.emplace_back(to_text(table->at(row, command)), to_text(table->at(row, key)));
    }
    return keys;
}

bool diBRVBLib::shows_examples_at_start() const { return to_boolean(call(Product, "ShowExamplesAtStart")); }

bool diBRVBLib::allows_training() const { return to_boolean(call(Product, "AllowsTraining")); }

automation::Value diBRVBLib::machine_value(std::string_view name) const {
    return call(Product, "MachineValue", {name});
}

std::string diBRVBLib::data_folder() const { return to_text(call(Product, "DataFolder")); }

void diBRVBLib::show_help() const { call(Product, "ShowHelp"); }

std::string diBRVBLib::message(Text number) const {
    constexpr std::int32_t english = 1033;
    return to_text(call(Product, "Message", {static_cast<std::int32_t>(number), english}));
}

void diBRVBLib::command_bracket(bool ended) const { call(Product, "CommandBracket", {ended, constant(0)}); }

std::string diBRVBLib::text(std::int32_t number) const { return to_text(call(String, "Text", {number})); }

std::string diBRVBLib::style_key(std::string_view style_name) const {
    return to_text(call(String, "StyleKey", {style_name}));
}

std::vector<std::string> diBRVBLib::number_format_sections(std::string_view format) const {
    const automation::Value sections = call(String, "Sections", {format});
    std::vector<std::string> texts;
    if (const auto* array = sections.array()) {
        for (const automation::Value& section : array->elements()) texts.push_back(to_text(section));
    }
    return texts;
}

AdjustedNumberFormat diBRVBLib::with_decimals(std::string_view format, std::int32_t step,
                                              std::string_view general_shows) const {
    return adjusted(call(String, "AdjustDecimals", {format, step, general_shows}));
}

AdjustedNumberFormat diBRVBLib::with_scale(std::string_view format, std::int32_t step) const {
    return adjusted(call(String, "AdjustScale", {format, step}));
}

std::int32_t diBRVBLib::closing_parenthesis(std::string_view expression) const {
    return automation::to_integer(call(String, "ClosingParenthesis", {expression}));
}

bool diBRVBLib::version_at_least(std::string_view version, std::int32_t major) const {
    return to_boolean(call(String, "VersionAtLeast", {version, major}));
}

std::optional<double> diBRVBLib::typed_number(std::string_view text) const {
    if (!to_boolean(call(String, "IsNumeric", {text}))) return std::nullopt;
    return automation::to_double(call(String, "Number", {text}));
}

bool diBRVBLib::check_numeric_field(std::string_view text, std::string_view field_name) const {
    return to_boolean(call(String, "CheckNumericField", {text, field_name, product_title}));
}

std::string diBRVBLib::name_text(std::string_view text) const { return to_text(call(String, "NameText", {text})); }

automation::Date diBRVBLib::now() const {
    return automation::Date{automation::to_double(automation::get(automation::to_required_object(iDate()), "Now"))};
}

std::string diBRVBLib::present_time_text() const { return to_text(call(Date, "Text")); }

automation::Date diBRVBLib::date_add(std::string_view interval, double number, automation::Date date) const {
    return automation::Date{automation::to_double(call(Date, "DateAdd", {interval, number, date}))};
}

std::optional<automation::Date> diBRVBLib::typed_date(std::string_view text) const {
    const automation::Value date = call(Date, "Typed", {text});
    if (date.is(automation::Value::Kind::Empty)) return std::nullopt;
    return automation::Date{automation::to_double(date)};
}

bool diBRVBLib::file_exists(std::string_view path) const { return to_boolean(call(File, "Exists", {path})); }

std::string diBRVBLib::set_aside(std::string_view path, std::string_view why) const {
    return to_text(call(File, "SetAside", {path, why}));
}

std::optional<std::string> diBRVBLib::open_dialog(std::string_view title, std::string_view filter,
                                                  std::string_view pattern) const {
    return chosen(call(File, "OpenDialog", {dialog_title(title), filter, pattern}));
}

std::optional<std::string> diBRVBLib::save_dialog(std::string_view title, std::string_view filter,
                                                  std::string_view pattern, std::string_view proposed) const {
    return chosen(call(File, "SaveDialog", {dialog_title(title), filter, pattern, proposed}));
}

automation::Value diBRVBLib::sorted(const automation::Value& array) const { return call(Sort, "Sorted", {array}); }

void diBRVBLib::xml_clear() const { call(XML, "Clear"); }

automation::ObjectRef diBRVBLib::xml_load(std::string_view path, std::string_view identifier, std::string_view name,
                                          std::string_view latest_version) const {
    return automation::to_object(call(XML, "Load", {path, identifier, name, latest_version}));
}

void diBRVBLib::xml_start_document(std::string_view root, std::string_view version, std::string_view identifier) const {
    call(XML, "StartDocument", {root, version, identifier});
}

void diBRVBLib::xml_start_element(std::string_view name) const { call(XML, "StartElement", {name}); }

void diBRVBLib::xml_write_leaf(std::string_view name, const automation::Value& value) const {
    call(XML, "WriteLeaf", {name, value});
}

void diBRVBLib::xml_end_element(std::string_view name) const { call(XML, "EndElement", {name}); }

automation::ObjectRef diBRVBLib::xml_find(std::string_view name, const automation::ObjectRef& under) const {
    return automation::to_object(call(XML, "FindNode", {name, under}));
}

automation::ObjectRef diBRVBLib::xml_children(std::string_view name, const automation::ObjectRef& under) const {
    return automation::to_object(call(XML, "ChildNodes", {name, under}));
}

bool diBRVBLib::xml_save(std::string_view path) const { return to_boolean(call(XML, "Save", {path})); }

std::string diBRVBLib::xml_error() const {
    return to_text(automation::get(automation::to_required_object(iXML()), "LastError"));
}

void diBRVBLib::place_window(std::int32_t placement) const { call(Screen, "Place", {0, placement}); }

}  // namespace kestrune::core
