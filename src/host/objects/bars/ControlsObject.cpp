#include "host/objects/bars/ControlsObject.h"

#include "automation/Caption.h"
#include "host/objects/Items.h"
#include "host/objects/Optional.h"
#include "host/objects/bars/CommandBarObject.h"
#include "host/objects/bars/ControlObject.h"

namespace kestrune::host {

ObjectRef ControlsObject::parent() const { return std::make_shared<CommandBarObject>(session(), bar_); }
ObjectRef ControlsObject::new_enum() const { return items_of(*this); }

ObjectRef ControlsObject::item(const Value& index) const {
    constexpr std::string_view member = "CommandBarControls.Item";
    if (const auto* caption = index.if_is<std::string>()) {
        for (const auto& control : bar_->controls) {
            if (automation::same_caption(control->caption, *caption)) return control_object(session(), control);
        }
        refuse_argument(member, "there is no control '" + *caption + "'");
    }
    const std::int32_t position = automation::to_integer(index);
    if (position < 1 || position > count()) refuse_argument(member, "there is no such control");
    return control_object(session(), bar_->controls[static_cast<std::size_t>(position - 1)]);
}

ObjectRef ControlsObject::add(const Value& type, const Value& id, const Value& parameter, const Value& before,
                              const Value&) {
    constexpr std::string_view member = "CommandBarControls.Add";
    auto control = std::make_shared<BarControl>();
    control->type = value_or(type, msoControlButton);
    if (control->type != msoControlButton && control->type != msoControlPopup) {
        refuse_argument(member, "only buttons and popups can be added");
    }
    control->id = value_or(id, 1);
    if (control->id != 1) refuse_argument(member, "there is no control of Excel's own with this number");
    control->parameter = value_or<std::string>(parameter, {});
    control->bar = bar_;
    if (control->type == msoControlPopup) {
        control->popup = std::make_shared<CommandBar>();
        control->popup->type = msoBarTypePopup;
        control->popup->position = msoBarPopup;
        control->popup->opened_by = control;
    }
    const std::int32_t position = value_or(before, count() + 1);
    if (position < 1 || position > count() + 1) refuse_argument(member, "there is no such position");
    bar_->controls.insert(bar_->controls.begin() + (position - 1), control);
    return control_object(session(), control);
}

const MemberTable& ControlsObject::members() {
    using C = ControlsObject;
    static constexpr auto rows =
        automation::member_rows(enumeration<&C::new_enum>(), read_only<&C::item>("Item", 0, "Index"),
                                read_only<&C::application>("Application", 1), read_only<&C::parent>("Parent", 2),
                                read_only<&C::count>("Count", 3),
                                method<&C::add>("Add", 4, "[Type], [Id], [Parameter], [Before], [Temporary]"));
    static constexpr MemberTable table("CommandBarControls", rows);
    return table;
}

}  // namespace kestrune::host
