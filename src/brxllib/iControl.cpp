#include "brxllib/iControl.h"

#include "brxllib/Menus.h"
#include "excel/Constants.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;
using automation::ObjectRef;

ObjectRef iControl::find(const ObjectRef& parent, const std::string& caption) const {
    return find_control(excel::CommandBarPopup(parent).Controls(), caption).object();
}

ObjectRef iControl::find_by_tag(const std::string& tag) const {
    return library_->application.CommandBars().FindControl(tag).object();
}

std::string iControl::clicked_parameter() const {
    const excel::CommandBarControl clicked = library_->application.CommandBars().ActionControl();
    return clicked ? clicked.Parameter() : std::string();
}

void iControl::set_caption(const ObjectRef& control, const std::string& caption) {
    excel::CommandBarControl(control).Caption(caption);
}

void iControl::set_enabled(const ObjectRef& control, bool enabled) {
    excel::CommandBarControl(control).Enabled(enabled);
}

void iControl::set_checked(const ObjectRef& button, bool checked) {
    excel::CommandBarButton(button).State(checked ? excel::msoButtonDown : excel::msoButtonUp);
}

void iControl::set_tooltip(const ObjectRef& control, const std::string& text) {
    excel::CommandBarControl(control).TooltipText(text);
}

void iControl::remove(const ObjectRef& control) { excel::CommandBarControl(control).Delete(); }

const MemberTable& iControl::members() {
    using C = iControl;
    static constexpr auto rows = automation::member_rows(
        method<&C::find>("Find", 1, "Parent, Caption"), method<&C::find_by_tag>("FindByTag", 2, "Tag"),
        method<&C::clicked_parameter>("ClickedParameter", 3),
        method<&C::set_caption>("SetCaption", 4, "Control, Caption"),
        method<&C::set_enabled>("SetEnabled", 5, "Control, Enabled"),
        method<&C::set_checked>("SetChecked", 6, "Button, Checked"),
        method<&C::set_tooltip>("SetTooltip", 7, "Control, Text"), method<&C::remove>("Delete", 8, "Control"));
    static constexpr MemberTable table("iControl", rows);
    return table;
}

}  // namespace kestrune::brxllib
