#include "settings/style_editor/fStyleEditor.h"

#include <algorithm>
#include <array>
#include <utility>

#include "automation/Text.h"
#include "core/bridges/Product.h"
#include "forms/MsgBox.h"
#include "number_format/NumberFormat.h"
#include "settings/ColorChoices.h"
#include "settings/StyleEdits.h"
#include "settings/style_editor/EditedFields.h"
#include "settings/style_editor/StyleEditorControls.h"
#include "settings/style_editor/StyleSample.h"
#include "styles/ColorText.h"

namespace kestrune::settings {
namespace {

using forms::Control;
using forms::Event;
using forms::Kind;
using styles::StyleFields;

constexpr std::array<forms::ControlDesign, 1> tabs{
    {{.name = editor_page::tabs, .kind = Kind::Tabs, .items = editor_page::heads}}};

constexpr auto controls =
    forms::joined(tabs, style_page_controls, number_page_controls, alignment_page_controls, font_page_controls,
                  border_page_controls, fill_page_controls, sample_controls, forms::ok_and_cancel);

constexpr forms::FormDesign form_design{
    .name = "fStyleEditor", .caption = "Brannoch Kestrune -- Style", .controls = controls};

// In the order of the categories.
constexpr std::array<std::string_view, 6> kinds{"optDataNone",  "optDataLong", "optDataMedium",
                                                "optDataShort", "optDate",     "optText"};

// The combo boxes of colors and the patches beside them.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> colors{{
    {"cmbFontColor", "imgFontColor"},
    {"cmbBorderColor", "imgBorderColor"},
    {"cmbCellColor", "imgCellColor"},
}};

constexpr std::array<std::string_view, 4> sides{"ckbBorderLeft", "ckbBorderTop", "ckbBorderBottom", "ckbBorderRight"};

// What belongs to a property and has no field of its own.
constexpr std::array<std::pair<std::string_view, bool StyleFields::*>, 4> beside{{
    {"lstNumberFormats", &StyleFields::bTransNumberFormat},
    {"spnIndents", &StyleFields::bTransIndents},
    {"btnAllSides", &StyleFields::bTransBorders},
    {"btnNoSide", &StyleFields::bTransBorders},
}};

std::string text_in(const Control& control) {
    if (control.is(Kind::Check)) return control.Checked() ? "True" : "False";
    return control.Text();
}

void put_text(Control& control, const std::string& text) {
    if (control.is(Kind::Check)) {
        control.Checked(text == "True");
    } else {
        control.Text(text);
    }
}

}  // namespace

fStyleEditor::fStyleEditor(core::SharedState& shared, const cUserSettings& settings, const StyleFields& fields,
                           const styles::cStyle* edited)
    : Form(form_design), shared_(shared), settings_(settings), edited_(edited), fields_(fields) {
    if (!fields.FriendlyName.empty()) Caption(Caption() + " -- " + fields.FriendlyName);
    offer_choices();
    handle_events();
    show_fields();
}

void fStyleEditor::offer_choices() {
    std::vector<std::string> fonts(usual_fonts.begin(), usual_fonts.end());
    std::vector<std::string> formats(usual_number_formats.begin(), usual_number_formats.end());
    const auto add = [](std::vector<std::string>& list, const std::string& text) {
        if (std::ranges::find(list, text) == list.end()) list.push_back(text);
    };
    for (std::int32_t i = 1; i <= settings_.Styles->Count(); ++i) {
        const StyleFields& style = *settings_.Styles->Item(i);
        add(fonts, style.FontName);
        // Items part their columns by tabs.
        if (style.NumberFormat.find('\t') == std::string::npos) add(formats, style.NumberFormat);
    }
    std::ranges::sort(fonts, automation::text_less);
    for (std::string& format : formats) {
        format += "\t" + automation::one_line(shown_text(shared_, format, sample_for(format)));
    }
    (*this)["cmbFontName"].List(std::move(fonts));
    (*this)["lstNumberFormats"].List(std::move(formats));
    for (const char* name : {"cmbFontColor", "cmbBorderColor"}) offer_colors((*this)[name]);
    offer_fills((*this)["cmbCellColor"]);
}

void fStyleEditor::handle_events() {
    const auto changed = [this](auto act) {
        return [this, act](auto&) {
            if (filling_) return;
            filling_ = true;
            act();
            filling_ = false;
        };
    };
    for (const EditedProperty& property : edited_properties()) {
        on(property.control, Event::Change, changed([this] {
               show_usable();
               show_sample();
           }));
    }
    for (const EditedField& field : edited_fields()) {
        on(field.control, Event::Change, changed([this, name = field.control] {
               Control& list = (*this)["lstNumberFormats"];
               if (name == "txtNumberFormat") list.ListIndex(list.place_of((*this)[name].Text()));
               show_sample();
           }));
    }
    on("lstNumberFormats", Event::Change, changed([this] {
           const Control& list = (*this)["lstNumberFormats"];
           (*this)["txtNumberFormat"].Text(std::string(list.item(list.ListIndex(), 0)));
           show_sample();
       }));
    on("spnIndents", Event::Change, changed([this] {
           (*this)["txtIndents"].Text(std::to_string((*this)["spnIndents"].Number()));
           show_sample();
       }));
    on("cmbSampleValue", Event::Change, changed([this] { show_sample(); }));
    on("btnSetAll", Event::Click, [this](auto&) { tick_all(true); });
    on("btnSetNone", Event::Click, [this](auto&) { tick_all(false); });
    on("btnAllSides", Event::Click, [this](auto&) { border_all(true); });
    on("btnNoSide", Event::Click, [this](auto&) { border_all(false); });
    on("btnCapture", Event::Click, [this](auto&) { capture(); });
    on("btnOK", Event::Click, [this](auto&) { confirm(); });
    on("btnCancel", Event::Click, [this](auto&) { Unload(); });
}

void fStyleEditor::show_fields() {
    filling_ = true;
    (*this)["txtName"].Text(fields_.FriendlyName);
    const auto kind = static_cast<std::size_t>(fields_.Category);
    (*this)[kinds[kind < kinds.size() ? kind : 0]].Checked(true);
    for (const EditedProperty& property : edited_properties()) {
        (*this)[property.control].Checked(!(fields_.*property.transparent));
    }
    for (const EditedField& field : edited_fields()) put_text((*this)[field.control], field.text(fields_));
    Control& list = (*this)["lstNumberFormats"];
    list.ListIndex(list.place_of(fields_.NumberFormat));
    show_usable();
    (*this)["cmbSampleValue"].Text(std::string(sample_for(fields_.NumberFormat)));
    show_sample();
    filling_ = false;
}

void fStyleEditor::show_usable() {
    const auto is_set = [&](bool StyleFields::*transparent) {
        const auto rows = edited_properties();
        const auto row = std::ranges::find(rows, transparent, &EditedProperty::transparent);
        return row == rows.end() || (*this)[row->control].Checked();
    };
    for (const EditedField& field : edited_fields()) {
        if (field.transparent) (*this)[field.control].Enabled(is_set(field.transparent));
    }
    for (const auto& [name, transparent] : beside) (*this)[name].Enabled(is_set(transparent));
}

void fStyleEditor::show_sample() {
    const StyleFields style = entered();
    (*this)["spnIndents"].Number(style.Indents);
    for (const auto& [name, patch] : colors) {
        (*this)[patch].Picture(styles::color_patch(styles::color_meant((*this)[name].Text())));
    }
    (*this)["smpStyle"].Looks(sample_of(shared_, style, (*this)["cmbSampleValue"].Text()));
}

void fStyleEditor::tick_all(bool ticked) {
    for (const EditedProperty& property : edited_properties()) (*this)[property.control].Checked(ticked);
}

void fStyleEditor::border_all(bool bordered) {
    for (const std::string_view side : sides) (*this)[side].Checked(bordered);
    // Sides without a line are none.
    Control& line = (*this)["cmbBorderStyle"];
    if (bordered && line.ListIndex() <= 0) line.Text("Continuous");
}

void fStyleEditor::capture() {
    const auto captured = captured_fields(shared_, entered());
    if (!captured) return tell(core::Text::NoActiveCell);
    fields_ = *captured;
    show_fields();
}

StyleFields fStyleEditor::entered() {
    StyleFields style = fields_;
    style.FriendlyName = automation::trimmed((*this)["txtName"].Text());
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if ((*this)[kinds[i]].Checked()) style.Category = static_cast<std::int32_t>(i);
    }
    for (const EditedProperty& property : edited_properties()) {
        style.*property.transparent = !(*this)[property.control].Checked();
    }
    for (const EditedField& field : edited_fields()) {
        static_cast<void>(field.take(style, text_in((*this)[field.control])));
    }
    return style;
}

Control* fStyleEditor::take() {
    StyleFields style = entered();
    if (const auto problem = style_name_problem(settings_, style.FriendlyName, edited_)) {
        tell(*problem, style.FriendlyName);
        return &(*this)["txtName"];
    }
    for (const EditedField& field : edited_fields()) {
        Control& control = (*this)[field.control];
        const std::string text = text_in(control);
        // What the style leaves alone does not matter.
        if ((field.transparent && style.*field.transparent) || field.take(style, text)) continue;
        const bool is_format = field.problem == core::Text::NoNumberFormat;
        const std::string why = is_format && !text.empty() ? number_format::NumberFormat(text).error() : std::string();
        tell(field.problem, automation::one_line(text) + (why.empty() ? "" : " (" + why + ")"));
        return &control;
    }
    result_ = std::move(style);
    return nullptr;
}

void fStyleEditor::go_there(Control& control) {
    const Control* on_page = &control;
    while (on_page->container() && !on_page->container()->is(Kind::Tabs)) on_page = on_page->container();
    (*this)[editor_page::tabs].ListIndex(on_page->design().page);
    SetFocus(control.Name());
}

void fStyleEditor::tell(core::Text text, std::string_view about) const {
    std::string message = shared_.general().message(text);
    // Those that end in a blank say what they are about.
    if (message.ends_with(' ')) message += about;
    forms::MsgBox(shared_.presenter, message, forms::vbExclamation, core::product_title);
}

void fStyleEditor::confirm() {
    if (Control* wrong = take()) return go_there(*wrong);
    recognise_colors(shared_, fields_, *result_);
    Unload();
}

}  // namespace kestrune::settings
