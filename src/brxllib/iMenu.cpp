#include "brxllib/iMenu.h"

#include "automation/ResumeNext.h"
#include "brxllib/Menus.h"
#include "excel/Constants.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;
using automation::ObjectRef;

namespace {

// A bar and a popup have their controls under the same name.
excel::CommandBarControls controls_of(const ObjectRef& parent) { return excel::CommandBarPopup(parent).Controls(); }

excel::CommandBar find_bar(const excel::Application& application, std::string_view name) {
    excel::CommandBar bar;
    // Excel has no way to ask.
    const automation::Trace nobody;
    automation::ResumeNext{nobody}([&] { bar = application.CommandBars().Item(name); });
    return bar;
}

void paint(const excel::CommandBarControl& control, std::int32_t color, const Surroundings& around) {
    if (!around.swatch) {
        throw automation::AutomationError(automation::hresult::object_required, "iMenu.AddButton",
                                          "nothing makes pictures here");
    }
    const excel::CommandBarButton button(control.object());
    button.Picture(around.swatch(color));
    button.Style(excel::msoButtonIconAndCaption);
}

}  // namespace

ObjectRef iMenu::worksheet_menu_bar() const {
    // In every language of Excel this name is understood.
    return library_->application.CommandBars().Item("Worksheet Menu Bar").object();
}

ObjectRef iMenu::toolbar(const std::string& name) {
    if (const excel::CommandBar bar = find_bar(library_->application, name)) return bar.object();
    return library_->application.CommandBars().Add(name, excel::msoBarTop, true).object();
}

bool iMenu::remove_toolbar(const std::string& name) {
    const excel::CommandBar bar = find_bar(library_->application, name);
    if (bar) bar.Delete();
    return static_cast<bool>(bar);
}

ObjectRef iMenu::add_popup(const ObjectRef& parent, const std::string& caption, const Text& on_action, const Text& tag,
                           Flag begin_group, Number before) {
    ControlDesign design;
    design.caption = caption;
    design.on_action = on_action.value_or("");
    design.tag = tag.value_or("");
    design.begin_group = begin_group.value_or(false);
    design.before = before;
    return brxllib::add_popup(controls_of(parent), design).object();
}

ObjectRef iMenu::add_button(const ObjectRef& parent, const std::string& caption, const std::string& on_action,
                            const Text& parameter, Number face_id, Flag begin_group, const Text& tag, Number before,
                            const Text& shortcut_text, Number swatch) {
    ControlDesign design;
    design.caption = caption;
    design.on_action = on_action;
    design.parameter = parameter.value_or("");
    design.face_id = face_id;
    design.begin_group = begin_group.value_or(false);
    design.tag = tag.value_or("");
    design.before = before;
    design.shortcut = shortcut_text.value_or("");
    const excel::CommandBarControl control = brxllib::add_button(controls_of(parent), design);
    // A button without its swatch is better than none.
    if (swatch) automation::ResumeNext{library_->trace}([&] { paint(control, *swatch, library_->around); });
    return control.object();
}

std::int32_t iMenu::clear(const ObjectRef& parent) { return clear_controls(controls_of(parent)); }

std::int32_t iMenu::remove(const ObjectRef& parent, const std::string& caption) {
    return remove_controls(controls_of(parent), caption);
}

const MemberTable& iMenu::members() {
    using M = iMenu;
    static constexpr auto rows = automation::member_rows(
        method<&M::worksheet_menu_bar>("WorksheetMenuBar", 1), method<&M::toolbar>("Toolbar", 2, "Name"),
        method<&M::remove_toolbar>("RemoveToolbar", 3, "Name"),
        method<&M::add_popup>("AddPopup", 4, "Parent, Caption, [OnAction], [Tag], [BeginGroup], [Before]"),
        method<&M::add_button>("AddButton", 5,
                               "Parent, Caption, OnAction, [Parameter], [FaceId], [BeginGroup], [Tag], [Before], "
                               "[ShortcutText], [Swatch]"),
        method<&M::clear>("Clear", 6, "Parent"), method<&M::remove>("Remove", 7, "Parent, Caption"));
    static constexpr MemberTable table("iMenu", rows);
    return table;
}

}  // namespace kestrune::brxllib
