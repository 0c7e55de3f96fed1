#pragma once

#include "host/objects/HostObject.h"
#include "host/objects/bars/BarRefusal.h"
#include "host/objects/bars/CommandBars.h"

namespace kestrune::host {

// What buttons and popups have in common. Every call fails once the control is deleted.
template <class Derived>
class ControlObject : public HostObject<Derived> {
  public:
    ControlObject(HostSession& session, std::shared_ptr<BarControl> control)
        : HostObject<Derived>(session), control_(std::move(control)) {}

    [[nodiscard]] const std::shared_ptr<BarControl>& control() const { return control_; }

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t type() const { return get("Type").type; }  // MsoControlType
    [[nodiscard]] std::int32_t id() const { return get("Id").id; }
    [[nodiscard]] std::int32_t index() const;
    [[nodiscard]] bool built_in() const { return get("BuiltIn").built_in; }
    [[nodiscard]] std::string caption() const { return get("Caption").caption; }
    void set_caption(const std::string& text) { get("Caption").caption = text; }
    [[nodiscard]] std::string tag() const { return get("Tag").tag; }
    void set_tag(const std::string& text) { get("Tag").tag = text; }
    [[nodiscard]] std::string parameter() const { return get("Parameter").parameter; }
    void set_parameter(const std::string& text) { get("Parameter").parameter = text; }
    [[nodiscard]] std::string on_action() const { return get("OnAction").on_action; }
    void set_on_action(const std::string& macro) { get("OnAction").on_action = macro; }
    [[nodiscard]] std::string tooltip() const;
    void set_tooltip(const std::string& text) { get("TooltipText").tooltip = text; }
    [[nodiscard]] std::string description() const { return get("DescriptionText").description; }
    void set_description(const std::string& text) { get("DescriptionText").description = text; }
    [[nodiscard]] bool begin_group() const { return get("BeginGroup").begin_group; }
    void set_begin_group(bool on) { get("BeginGroup").begin_group = on; }
    [[nodiscard]] bool enabled() const { return get("Enabled").enabled; }
    void set_enabled(bool on) { get("Enabled").enabled = on; }
    [[nodiscard]] bool visible() const { return get("Visible").visible; }
    void set_visible(bool on) { get("Visible").visible = on; }
    void remove(const Value& temporary);
    // As a click does: runs the action, with the control as the bars' ActionControl. A control that is greyed out
    // refuses.
    void execute();

  protected:
    [[nodiscard]] BarControl& get(std::string_view member) const {
        if (control_->bar.expired()) refuse_bar(full(member), "the control is deleted");
        return *control_;
    }

  private:
    [[nodiscard]] std::string full(std::string_view member) const {
        return std::string(this->type_name()) + "." + std::string(member);
    }

    std::shared_ptr<BarControl> control_;
};

class ButtonObject final : public ControlObject<ButtonObject> {
  public:
    static const MemberTable& members();
    using ControlObject::ControlObject;

    [[nodiscard]] std::int32_t face_id() const { return get("FaceId").face_id; }
    void set_face_id(std::int32_t id) { get("FaceId").face_id = id; }
    [[nodiscard]] std::int32_t state() const { return get("State").state; }  // MsoButtonState
    void set_state(std::int32_t state);
    [[nodiscard]] std::int32_t style() const { return get("Style").style; }  // MsoButtonStyle
    void set_style(std::int32_t style) { get("Style").style = style; }
    [[nodiscard]] std::string shortcut() const { return get("ShortcutText").shortcut; }
    void set_shortcut(const std::string& text) { get("ShortcutText").shortcut = text; }
    [[nodiscard]] Value picture() const { return get("Picture").picture; }
    void set_picture(const Value& picture) { get("Picture").picture = picture; }
    [[nodiscard]] Value mask() const { return get("Mask").mask; }
    void set_mask(const Value& mask) { get("Mask").mask = mask; }
};

class PopupObject final : public ControlObject<PopupObject> {
  public:
    static const MemberTable& members();
    using ControlObject::ControlObject;

    [[nodiscard]] ObjectRef controls() const;
    [[nodiscard]] ObjectRef command_bar() const;
};

// The object of a control; Nothing for null.
ObjectRef control_object(HostSession& session, const std::shared_ptr<BarControl>& control);

}  // namespace kestrune::host
