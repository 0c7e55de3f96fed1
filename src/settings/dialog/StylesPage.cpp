#include "settings/dialog/StylesPage.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <utility>

#include "automation/Text.h"
#include "core/bridges/Product.h"
#include "forms/MsgBox.h"
#include "settings/StyleEdits.h"
#include "settings/dialog/StylesOfKind.h"
#include "settings/style_editor/fStyleEditor.h"

namespace kestrune::settings {

using forms::Event;
using styles::cStyle;
using styles::StyleRef;

namespace {

std::string line_of(const cStyle& style) {
    const std::string format = style.bTransNumberFormat ? "" : automation::one_line(style.NumberFormat);
    return fmt::format("{}\t{}\t{}{}", style.FriendlyName, format, kind_name(style.Category),
                       style.AccessLevel == styles::protected_style ? ", protected" : "");
}

}  // namespace

StylesPage::StylesPage(forms::Form& form, Draft& draft) : SettingsPage(form, draft) {
    form.on("cmbStyleKind", Event::Change, [this](auto&) {
        if (!filling()) show_list(chosen().get());
    });
    form.on("lstStyles", Event::Change, [this](auto&) {
        if (!filling()) show_chosen();
    });
    form.on("txtStyleName", Event::AfterUpdate, [this](auto&) { rename(); });
    const auto buttons = std::to_array<std::pair<std::string_view, void (StylesPage::*)()>>({
        {"btnRenameStyle", &StylesPage::rename},
        {"btnEditStyle", &StylesPage::edit},
        {"btnNewFromCell", &StylesPage::make_from_cell},
        {"btnDuplicateStyle", &StylesPage::duplicate},
        {"btnRemoveStyle", &StylesPage::remove},
    });
    for (const auto& [name, act] : buttons) {
        form.on(name, Event::Click, [this, act = act](auto&) { (this->*act)(); });
    }
    form.on("lstStyles", Event::DblClick, [this](auto&) { edit(); });
    form.on("btnNewStyle", Event::Click, [this](auto&) { make({}); });
    form.on("btnStyleListUp", Event::Click, [this](auto&) { move(-1); });
    form.on("btnStyleListDown", Event::Click, [this](auto&) { move(1); });
}

void StylesPage::show() {
    fill("cmbStyleKind", at("cmbStyleKind").List(), std::max(0, at("cmbStyleKind").ListIndex()));
    show_list(chosen().get());
}

StyleRef StylesPage::chosen() const {
    return settings().Styles->Item(at("lstStyles").item(at("lstStyles").ListIndex(), 0));
}

StyleRef StylesPage::changeable() const {
    StyleRef style = chosen();
    if (!style || style->AccessLevel != styles::protected_style) return style;
    tell(core::Text::StyleIsStandard, style->FriendlyName);
    return nullptr;
}

void StylesPage::show_list(const cStyle* choice) {
    const auto listed = styles_of_kind(settings(), at("cmbStyleKind").ListIndex());
    std::vector<std::string> lines;
    for (std::int32_t i = 1; i <= listed->Count(); ++i) lines.push_back(line_of(*listed->Item(i)));
    const std::int32_t place = choice ? listed->position_of(*choice) : 0;
    fill("lstStyles", std::move(lines), listed->Count() == 0 ? -1 : std::max(0, place - 1));
    show_chosen();
}

void StylesPage::show_chosen() {
    const StyleRef style = chosen();
    const bool free = style && style->AccessLevel != styles::protected_style;
    at("txtStyleName").Text(style ? style->FriendlyName : std::string());
    for (const auto name : {"txtStyleName", "btnRenameStyle", "btnEditStyle", "btnRemoveStyle"}) at(name).Enabled(free);
    at("btnDuplicateStyle").Enabled(style != nullptr);
    // Among the styles of one kind, moving would go past others that are not seen.
    const bool whole = at("cmbStyleKind").ListIndex() == 0;
    const std::int32_t place = style ? settings().Styles->position_of(*style) : 0;
    at("btnStyleListUp").Enabled(whole && place > 1);
    at("btnStyleListDown").Enabled(whole && place > 0 && place < settings().Styles->Count());
}

void StylesPage::rename() {
    const StyleRef style = chosen();
    const std::string name(automation::trimmed(at("txtStyleName").Text()));
    if (!style || name == style->FriendlyName) return;
    const auto problem = style_name_problem(settings(), name, style.get());
    if (!changeable()) {
        at("txtStyleName").Text(style->FriendlyName);
    } else if (problem) {
        tell(*problem, name);
        at("txtStyleName").Text(style->FriendlyName);
    } else {
        rename_style(settings(), *style, name);
        show_list(style.get());
    }
}

void StylesPage::edit() {
    const StyleRef style = changeable();
    if (!style) return;
    fStyleEditor editor(shared(), settings(), *style, style.get());
    editor.Show(shared().presenter);
    if (!editor.result()) return;
    change_style(settings(), *style, *editor.result());
    show_list(style.get());
}

void StylesPage::make(styles::StyleFields fields) {
    const StyleRef before = chosen();
    fields.FriendlyName = unused_style_name(settings(), "My Style");
    // Of the kind that is listed.
    fields.Category = std::max(styles::category::none, at("cmbStyleKind").ListIndex() - 1);
    fStyleEditor editor(shared(), settings(), fields, nullptr);
    editor.Show(shared().presenter);
    if (!editor.result()) return;
    const auto made = std::make_shared<cStyle>(*editor.result());
    settings().Styles->Add(made, {}, before ? settings().Styles->position_of(*before) : 0, true);
    show_list(made.get());
}

void StylesPage::make_from_cell() {
    const auto captured = captured_fields(shared(), {});
    if (!captured) return tell(core::Text::NoActiveCell);
    make(*captured);
}

void StylesPage::duplicate() {
    const StyleRef style = chosen();
    if (!style) return;
    const StyleRef copy = style->Copy();
    // A copy of a standard style is the user's own.
    const bool is_standard = style->AccessLevel == styles::protected_style;
    copy->FriendlyName =
        unused_style_name(settings(), is_standard ? "My " + style->FriendlyName : style->FriendlyName + " Copy");
    copy->AccessLevel = 0;
    settings().Styles->Add(copy, {}, settings().Styles->position_of(*style), true);
    show_list(copy.get());
}

void StylesPage::remove() {
    const StyleRef style = changeable();
    if (!style) return;
    const std::string use = use_of(settings(), *style);
    if (!use.empty()) return tell(core::Text::StyleIsNeeded, use + ": " + style->FriendlyName);
    const auto cycles = cycles_with(settings(), *style);
    if (!cycles.empty()) {
        const std::string question =
            fmt::format("{}{}.  Would you like to proceed?", shared().general().message(core::Text::StyleIsInCycles),
                        fmt::join(cycles, ", "));
        const auto answer =
            forms::MsgBox(shared().presenter, question, forms::vbOKCancel + forms::vbExclamation, core::product_title);
        if (answer != forms::vbOK) return;
    }
    const std::int32_t line = at("lstStyles").ListIndex();
    const auto next = settings().Styles->Item(at("lstStyles").item(line + 1, 0));
    const auto before = settings().Styles->Item(at("lstStyles").item(line - 1, 0));
    remove_style(settings(), *style);
    show_list(next ? next.get() : before.get());
}

void StylesPage::move(std::int32_t step) {
    const StyleRef style = chosen();
    if (!style) return;
    const std::int32_t place = settings().Styles->position_of(*style);
    if (settings().Styles->Move(place, place + step)) show_list(style.get());
}

}  // namespace kestrune::settings
