#include "core/bridges/diBRXLLib.h"

#include <algorithm>
#include <type_traits>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"

namespace kestrune::core {

using automation::ObjectRef;

namespace {

std::vector<CellLink> links_of(const automation::Value& answer) {
    constexpr std::size_t columns = 9;
    const automation::Array* array = answer.array();
    if (!array || array->dimensions() != 2 || array->elements().size() % columns != 0) {
        throw automation::AutomationError(automation::hresult::type_mismatch, "the list of references",
                                          "is not a table of 9 columns");
    }
    std::vector<CellLink> links;
    const auto& cells = array->elements();
    for (std::size_t row = 0; row < cells.size(); row += columns) {
        const auto text = [&](std::size_t column) { return automation::to_text(cells[row + column]); };
        const auto number = [&](std::size_t column) { return automation::to_integer(cells[row + column]); };
        links.push_back({text(0), text(1), text(2), text(3), text(4), text(5), number(6), number(7), text(8)});
    }
    return links;
}

automation::Value optional(std::optional<std::int32_t> number) {
    if (!number) return automation::Missing{};
    return *number;
}

// Calls visit(first, second) for each row of a table of two columns; Empty is one without rows.
template <class Visit>
void visit_pairs(const automation::Value& answer, Visit&& visit) {
    const automation::Array* array = answer.array();
    if (!array) return;
    const auto& cells = array->elements();
    for (std::size_t i = 0; i + 1 < cells.size(); i += 2) visit(cells[i], cells[i + 1]);
}

std::vector<std::string> texts_of(const automation::Value& answer) {
    std::vector<std::string> texts;
    if (const automation::Array* array = answer.array()) {
        for (const automation::Value& text : array->elements()) texts.push_back(automation::to_text(text));
    }
    return texts;
}

}  // namespace

void diBRXLLib::set_application(const automation::ObjectRef& application) const {
    automation::call(automation::to_required_object(iPublic()), "SetApplication", {application});
}

bool diBRXLLib::may_run_command() const { return automation::to_boolean(call(Workbook, "MayRunCommand")); }

std::int32_t diBRXLLib::nearest_color_index(std::int32_t color, const automation::ObjectRef& workbook) const {
    return automation::to_integer(call(Workbook, "NearestColorIndex", {color, workbook}));
}

std::int32_t diBRXLLib::content_kind(const ObjectRef& cell) const {
    return automation::to_integer(call(Range, "ContentKind", {cell}));
}

std::vector<std::int32_t> diBRXLLib::content_kinds(const ObjectRef& range) const {
    const automation::Value answer = call(Range, "ContentKind", {range});
    const automation::Array* kinds = answer.array();
    if (!kinds) return {automation::to_integer(answer)};
    std::vector<std::int32_t> list;
    list.reserve(kinds->elements().size());
    for (const automation::Value& kind : kinds->elements()) list.push_back(automation::to_integer(kind));
    return list;
}

ObjectRef diBRXLLib::in_use(const ObjectRef& range) const {
    return automation::to_object(call(Range, "InUse", {range}));
}

std::vector<NumberFormatPart> diBRXLLib::number_formats(const ObjectRef& range) const {
    std::vector<NumberFormatPart> parts;
    visit_pairs(call(Range, "NumberFormats", {range}),
                [&](const automation::Value& address, const automation::Value& format) {
                    parts.push_back({automation::to_text(address), automation::to_text(format)});
                });
    return parts;
}

std::vector<FontSizePart> diBRXLLib::font_sizes(const ObjectRef& range) const {
    std::vector<FontSizePart> parts;
    visit_pairs(call(Range, "FontSizes", {range}),
                [&](const automation::Value& address, const automation::Value& points) {
                    parts.push_back({automation::to_text(address), automation::to_double(points)});
                });
    return parts;
}

std::vector<TextPart> diBRXLLib::text_parts(const ObjectRef& range, std::string_view text) const {
    std::vector<TextPart> parts;
    visit_pairs(call(Range, "TextParts", {range, text}),
                [&](const automation::Value& address, const automation::Value& holds) {
                    parts.push_back({automation::to_text(address), automation::to_boolean(holds)});
                });
    return parts;
}

std::vector<FormulaBlock> diBRXLLib::formula_blocks(const ObjectRef& range) const {
    std::vector<FormulaBlock> blocks;
    visit_pairs(call(Range, "FormulaBlocks", {range}), [&](const automation::Value& address,
                                                           const automation::Value& kind) {
        blocks.push_back({automation::to_text(address), static_cast<FormulaBlock::Kind>(automation::to_integer(kind))});
    });
    return blocks;
}

std::vector<CellLink> diBRXLLib::precedents(const ObjectRef& cell) const {
    return links_of(call(Range, "Precedents", {cell}));
}

std::vector<CellLink> diBRXLLib::dependents(const ObjectRef& cell) const {
    return links_of(call(Range, "Dependents", {cell}));
}

ObjectRef diBRXLLib::row_label(const ObjectRef& cell) const {
    return automation::to_object(call(Worksheet, "RowLabel", {cell}));
}

ObjectRef diBRXLLib::column_label(const ObjectRef& cell) const {
    return automation::to_object(call(Worksheet, "ColumnLabel", {cell}));
}

ObjectRef diBRXLLib::row_heading(const ObjectRef& cell) const {
    return automation::to_object(call(Worksheet, "RowHeading", {cell}));
}

ObjectRef diBRXLLib::column_heading(const ObjectRef& cell) const {
    return automation::to_object(call(Worksheet, "ColumnHeading", {cell}));
}

std::string diBRXLLib::shift_formula(std::string_view formula, std::int32_t rows, std::int32_t columns) const {
    return automation::to_text(call(Formula, "Shift", {formula, rows, columns}));
}

std::string diBRXLLib::shift_formula(std::string_view formula, std::int32_t rows, std::int32_t columns,
                                     std::int32_t row, std::int32_t column) const {
    return automation::to_text(call(Formula, "Shift", {formula, rows, columns, row, column}));
}

std::optional<std::int32_t> diBRXLLib::anchor_of(std::string_view formula) const {
    const automation::Value anchor = call(Formula, "AnchorOf", {formula});
    if (anchor.is(automation::Value::Kind::Empty)) return std::nullopt;
    return automation::to_integer(anchor);
}

std::string diBRXLLib::anchored(std::string_view formula, std::int32_t anchor) const {
    return automation::to_text(call(Formula, "Anchored", {formula, anchor}));
}

ObjectRef diBRXLLib::open_workbook(std::string_view path) const {
    return automation::to_object(call(Workbook, "Open", {path}));
}

std::vector<std::string> diBRXLLib::invalid_names(const ObjectRef& workbook) const {
    return texts_of(call(Workbook, "InvalidNames", {workbook}));
}

std::int32_t diBRXLLib::remove_invalid_names(const ObjectRef& workbook) const {
    return automation::to_integer(call(Workbook, "RemoveInvalidNames", {workbook}));
}

std::vector<std::string> diBRXLLib::unused_number_formats(const ObjectRef& workbook,
                                                          const std::vector<std::string>& in_use) const {
    automation::Array codes(automation::Array::Bound{1, static_cast<std::int32_t>(in_use.size())});
    std::ranges::copy(in_use, codes.elements().begin());
    return texts_of(call(Workbook, "UnusedNumberFormats", {workbook, codes}));
}

ObjectRef diBRXLLib::worksheet_menu_bar() const { return automation::to_object(call(Menu, "WorksheetMenuBar")); }

ObjectRef diBRXLLib::toolbar(std::string_view name) const {
    return automation::to_object(call(Menu, "Toolbar", {name}));
}

bool diBRXLLib::remove_toolbar(std::string_view name) const {
    return automation::to_boolean(call(Menu, "RemoveToolbar", {name}));
}

ObjectRef diBRXLLib::add_popup(const ObjectRef& parent, std::string_view caption, std::string_view on_action,
                               std::string_view tag, bool begin_group, std::optional<std::int32_t> before) const {
    return automation::to_object(
        call(Menu, "AddPopup", {parent, caption, on_action, tag, begin_group, optional(before)}));
}

ObjectRef diBRXLLib::add_button(const ObjectRef& parent, const ButtonDesign& design) const {
    return automation::to_object(
        call(Menu, "AddButton",
             {parent, design.caption, design.on_action, design.parameter, optional(design.face_id), design.begin_group,
              design.tag, optional(design.before), design.shortcut, optional(design.color)}));
}

std::int32_t diBRXLLib::clear_controls(const ObjectRef& parent) const {
    return automation::to_integer(call(Menu, "Clear", {parent}));
}

std::int32_t diBRXLLib::remove_controls(const ObjectRef& parent, std::string_view caption) const {
    return automation::to_integer(call(Menu, "Remove", {parent, caption}));
}

ObjectRef diBRXLLib::find_control(const ObjectRef& parent, std::string_view caption) const {
    return automation::to_object(call(Control, "Find", {parent, caption}));
}

ObjectRef diBRXLLib::find_control_by_tag(std::string_view tag) const {
    return automation::to_object(call(Control, "FindByTag", {tag}));
}

std::string diBRXLLib::clicked_parameter() const { return automation::to_text(call(Control, "ClickedParameter")); }

void diBRXLLib::set_control_enabled(const ObjectRef& control, bool enabled) const {
    call(Control, "SetEnabled", {control, enabled});
}

void diBRXLLib::set_control_checked(const ObjectRef& button, bool checked) const {
    call(Control, "SetChecked", {button, checked});
}

void diBRXLLib::set_control_caption(const ObjectRef& control, std::string_view caption) const {
    call(Control, "SetCaption", {control, caption});
}

void diBRXLLib::set_control_tooltip(const ObjectRef& control, std::string_view text) const {
    call(Control, "SetTooltip", {control, text});
}

void diBRXLLib::display_array(const automation::Value& array, std::string_view title) const {
    call(Display, "DisplayArray", {array, title});
}

AutoColorSettings diBRXLLib::auto_color_defaults() const {
    automation::Object& constants = automation::to_required_object(iConst());
    AutoColorSettings settings;
    for_each_setting(settings, [&](std::string_view name, auto& setting) {
        setting = automation::convert<std::remove_reference_t<decltype(setting)>>(automation::get(constants, name));
    });
    return settings;
}

void diBRXLLib::set_auto_color(const AutoColorSettings& settings) const {
    automation::Object& service = automation::to_required_object(iAutoColor());
    const automation::ResumeNext attempt(trace());
    for_each_setting(settings, [&](std::string_view name, const auto& setting) {
        attempt([&] { automation::put(service, name, setting); });
    });
}

std::string diBRXLLib::auto_color_smart_cycle() const {
    return automation::to_text(automation::get(automation::to_required_object(iAutoColor()), "SmartCycleName"));
}

void diBRXLLib::toggle_auto_color() const { call(AutoColor, "Toggle"); }
bool diBRXLLib::auto_color_is_on() const {
    return automation::to_boolean(automation::get(automation::to_required_object(iAutoColor()), "bAutoColorOn"));
}
void diBRXLLib::auto_color_selection() const { call(AutoColor, "RunSelection"); }
void diBRXLLib::auto_color_worksheet() const { call(AutoColor, "RunWorksheet"); }
void diBRXLLib::auto_color_workbook() const { call(AutoColor, "RunWorkbook"); }

void diBRXLLib::toggle_black_fonts() const { call(AutoColor, "ToggleBlackFonts"); }

void diBRXLLib::update_ctrl_enter(bool while_on, bool while_off) const {
    call(AutoColor, "UpdateCtrlEnter", {while_on, while_off});
}

bool diBRXLLib::begin_step(std::string_view name, const Touches& touches) const {
    return automation::to_boolean(
        call(UndoRedo, "BeginStep",
             {name, static_cast<std::int32_t>(touches.reach), static_cast<std::int32_t>(touches.aspects)}));
}

bool diBRXLLib::record(const ObjectRef& range, Aspects aspects) const {
    return automation::to_boolean(call(UndoRedo, "Record", {range, static_cast<std::int32_t>(aspects)}));
}

bool diBRXLLib::record_insertion(const ObjectRef& lines, bool rows) const {
    return automation::to_boolean(call(UndoRedo, "RecordInsertion", {lines, rows}));
}

bool diBRXLLib::record_deletion(const ObjectRef& lines, bool rows) const {
    return automation::to_boolean(call(UndoRedo, "RecordDeletion", {lines, rows}));
}

void diBRXLLib::end_step() const { call(UndoRedo, "EndStep"); }
void diBRXLLib::set_undo_point() const { call(UndoRedo, "SetUndoPoint"); }
void diBRXLLib::undo() const { call(UndoRedo, "Undo"); }
void diBRXLLib::redo() const { call(UndoRedo, "Redo"); }

std::string diBRXLLib::undo_text() const {
    return automation::to_text(automation::get(automation::to_required_object(iUndoRedo()), "UndoText"));
}

std::string diBRXLLib::redo_text() const {
    return automation::to_text(automation::get(automation::to_required_object(iUndoRedo()), "RedoText"));
}

void diBRXLLib::register_callback(const ObjectRef& callback) const {
    call(UndoRedo, "RegisterCallback", {client_name, callback});
}

}  // namespace kestrune::core
