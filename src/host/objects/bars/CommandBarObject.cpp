#include "host/objects/bars/CommandBarObject.h"

#include <algorithm>

#include "host/objects/Optional.h"
#include "host/objects/bars/BarRefusal.h"
#include "host/objects/bars/ControlObject.h"
#include "host/objects/bars/ControlsObject.h"

namespace kestrune::host {

CommandBar& CommandBarObject::get(std::string_view member) const {
    if (bar_->deleted) refuse_bar("CommandBar." + std::string(member), "the command bar is deleted");
    return *bar_;
}

ObjectRef CommandBarObject::parent() const {
    const auto popup = get("Parent").opened_by.lock();
    return popup ? control_object(session(), popup) : application();
}

void CommandBarObject::set_name_local(const std::string& name) {
    CommandBar& bar = get("NameLocal");
    if (bar.built_in) refuse_bar("CommandBar.NameLocal", "a bar of Excel's own keeps its name");
    bar.name = name;
}

ObjectRef CommandBarObject::controls() const {
    static_cast<void>(get("Controls"));
    return std::make_shared<ControlsObject>(session(), bar_);
}

std::int32_t CommandBarObject::index() const {
    static_cast<void>(get("Index"));
    const auto& all = session().command_bars->bars;
    const auto found = std::ranges::find(all, bar_);
    return found == all.end() ? 0 : static_cast<std::int32_t>(found - all.begin()) + 1;
}

ObjectRef CommandBarObject::find_control(const Value& type, const Value& id, const Value& tag, const Value& visible,
                                         const Value& recursive) const {
    const ControlSearch search(type, id, tag, visible, value_or(recursive, false));
    return control_object(session(), search.find(get("FindControl")));
}

void CommandBarObject::remove() {
    if (get("Delete").built_in) refuse_bar("CommandBar.Delete", "a bar of Excel's own stays");
    std::erase(session().command_bars->bars, bar_);
    discard(*bar_);
}

void CommandBarObject::reset() {
    CommandBar& bar = get("Reset");
    if (!bar.built_in) refuse_bar("CommandBar.Reset", "only Excel's own bars have something to go back to");
    std::erase_if(bar.controls, [](const auto& control) {
        if (control->built_in) return false;
        control->bar.reset();
        if (control->popup) discard(*control->popup);
        return true;
    });
}

const MemberTable& CommandBarObject::members() {
    using C = CommandBarObject;
    static constexpr auto rows = automation::member_rows(
        read_only<&C::application>("Application", 1), read_only<&C::parent>("Parent", 2),
        read_only<&C::name>("Name", 3), property<&C::name_local, &C::set_name_local>("NameLocal", 4),
        read_only<&C::controls>("Controls", 5), read_only<&C::index>("Index", 6), read_only<&C::built_in>("BuiltIn", 7),
        read_only<&C::type>("Type", 8), property<&C::position, &C::set_position>("Position", 9),
        property<&C::enabled, &C::set_enabled>("Enabled", 10), property<&C::visible, &C::set_visible>("Visible", 11),
        method<&C::find_control>("FindControl", 12, "[Type], [Id], [Tag], [Visible], [Recursive]"),
        method<&C::remove>("Delete", 13), method<&C::reset>("Reset", 14));
    static constexpr MemberTable table("CommandBar", rows);
    return table;
}

ControlSearch::ControlSearch(const Value& type, const Value& id, const Value& tag, const Value& visible, bool recursive)
    : type_(automation::convert<std::optional<std::int32_t>>(type)),
      id_(automation::convert<std::optional<std::int32_t>>(id)),
      tag_(automation::convert<std::optional<std::string>>(tag)),
      visible_only_(value_or(visible, false)),
      recursive_(recursive) {}

bool ControlSearch::matches(const BarControl& control) const {
    return (!type_ || *type_ == control.type) && (!id_ || *id_ == control.id) && (!tag_ || *tag_ == control.tag) &&
           (!visible_only_ || control.visible);
}

std::shared_ptr<BarControl> ControlSearch::find(const CommandBar& bar) const {
    for (const auto& control : bar.controls) {
        if (matches(*control)) return control;
    }
    if (!recursive_) return nullptr;
    for (const auto& control : bar.controls) {
        if (!control->popup) continue;
        if (auto found = find(*control->popup)) return found;
    }
    return nullptr;
}

}  // namespace kestrune::host
