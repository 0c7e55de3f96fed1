#include "host/objects/bars/ControlObject.h"

#include <algorithm>

#include "automation/Caption.h"
#include "host/objects/bars/Click.h"
#include "host/objects/bars/CommandBarObject.h"
#include "host/objects/bars/ControlsObject.h"

namespace kestrune::host {

template <class Derived>
ObjectRef ControlObject<Derived>::parent() const {
    static_cast<void>(get("Parent"));
    return std::make_shared<CommandBarObject>(this->session(), control_->bar.lock());
}

template <class Derived>
std::int32_t ControlObject<Derived>::index() const {
    static_cast<void>(get("Index"));
    const auto& all = control_->bar.lock()->controls;
    return static_cast<std::int32_t>(std::ranges::find(all, control_) - all.begin()) + 1;
}

template <class Derived>
std::string ControlObject<Derived>::tooltip() const {
    const BarControl& control = get("TooltipText");
    return control.tooltip.empty() ? automation::plain_caption(control.caption) : control.tooltip;
}

template <class Derived>
void ControlObject<Derived>::remove(const Value&) {
    static_cast<void>(get("Delete"));
    std::erase(control_->bar.lock()->controls, control_);
    control_->bar.reset();
    if (control_->popup) discard(*control_->popup);
}

template <class Derived>
void ControlObject<Derived>::execute() {
    const BarControl& control = get("Execute");
    if (!control.enabled) refuse_bar(full("Execute"), "the control is greyed out");
    click(this->session(), control_);
}

template class ControlObject<ButtonObject>;
template class ControlObject<PopupObject>;

void ButtonObject::set_state(std::int32_t state) {
    BarControl& control = get("State");
    if (state != msoButtonUp && state != msoButtonDown && state != msoButtonMixed) {
        refuse_argument("CommandBarButton.State", "there is no such state");
    }
    control.state = state;
}

ObjectRef PopupObject::controls() const {
    static_cast<void>(get("Controls"));
    return std::make_shared<ControlsObject>(session(), control()->popup);
}

ObjectRef PopupObject::command_bar() const {
    static_cast<void>(get("CommandBar"));
    return std::make_shared<CommandBarObject>(session(), control()->popup);
}

ObjectRef control_object(HostSession& session, const std::shared_ptr<BarControl>& control) {
    if (!control) return nullptr;
    if (control->popup) return std::make_shared<PopupObject>(session, control);
    return std::make_shared<ButtonObject>(session, control);
}

const MemberTable& ButtonObject::members() {
    using B = ButtonObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&B::application>("Application", 1), read_only<&B::parent>("Parent", 2),
        read_only<&B::type>("Type", 3), read_only<&B::id>("Id", 4), read_only<&B::index>("Index", 5),
        read_only<&B::built_in>("BuiltIn", 6), property<&B::caption, &B::set_caption>("Caption", 7),
        property<&B::tag, &B::set_tag>("Tag", 8), property<&B::parameter, &B::set_parameter>("Parameter", 9),
        property<&B::on_action, &B::set_on_action>("OnAction", 10),
        property<&B::tooltip, &B::set_tooltip>("TooltipText", 11),
        property<&B::description, &B::set_description>("DescriptionText", 12),
        property<&B::begin_group, &B::set_begin_group>("BeginGroup", 13),
        property<&B::enabled, &B::set_enabled>("Enabled", 14), property<&B::visible, &B::set_visible>("Visible", 15),
        method<&B::remove>("Delete", 16, "[Temporary]"), method<&B::execute>("Execute", 17),
        property<&B::face_id, &B::set_face_id>("FaceId", 18), property<&B::state, &B::set_state>("State", 19),
        property<&B::style, &B::set_style>("Style", 20), property<&B::shortcut, &B::set_shortcut>("ShortcutText", 21),
        property<&B::picture, &B::set_picture>("Picture", 22), property<&B::mask, &B::set_mask>("Mask", 23));
    static constexpr MemberTable table("CommandBarButton", rows);
    return table;
}

const MemberTable& PopupObject::members() {
    using P = PopupObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&P::application>("Application", 1), read_only<&P::parent>("Parent", 2),
        read_only<&P::type>("Type", 3), read_only<&P::id>("Id", 4), read_only<&P::index>("Index", 5),
        read_only<&P::built_in>("BuiltIn", 6), property<&P::caption, &P::set_caption>("Caption", 7),
        property<&P::tag, &P::set_tag>("Tag", 8), property<&P::parameter, &P::set_parameter>("Parameter", 9),
        property<&P::on_action, &P::set_on_action>("OnAction", 10),
        property<&P::tooltip, &P::set_tooltip>("TooltipText", 11),
        property<&P::description, &P::set_description>("DescriptionText", 12),
        property<&P::begin_group, &P::set_begin_group>("BeginGroup", 13),
        property<&P::enabled, &P::set_enabled>("Enabled", 14), property<&P::visible, &P::set_visible>("Visible", 15),
        method<&P::remove>("Delete", 16, "[Temporary]"), method<&P::execute>("Execute", 17),
        read_only<&P::controls>("Controls", 18), read_only<&P::command_bar>("CommandBar", 19));
    static constexpr MemberTable table("CommandBarPopup", rows);
    return table;
}

}  // namespace kestrune::host
