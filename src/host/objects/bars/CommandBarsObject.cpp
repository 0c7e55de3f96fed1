#include "host/objects/bars/CommandBarsObject.h"

#include "automation/Text.h"
#include "host/objects/Items.h"
#include "host/objects/Optional.h"
#include "host/objects/bars/BarRefusal.h"
#include "host/objects/bars/CommandBarObject.h"
#include "host/objects/bars/ControlObject.h"

namespace kestrune::host {

CommandBars& CommandBarsObject::bars() const {
    if (!session().command_bars) session().command_bars = CommandBars::built_in();
    return *session().command_bars;
}

std::int32_t CommandBarsObject::count() const { return static_cast<std::int32_t>(bars().bars.size()); }
ObjectRef CommandBarsObject::new_enum() const { return items_of(*this); }

ObjectRef CommandBarsObject::item(const Value& index) const {
    constexpr std::string_view member = "CommandBars.Item";
    if (const auto* name = index.if_is<std::string>()) {
        for (const auto& bar : bars().bars) {
            if (automation::same_text(bar->name, *name)) return std::make_shared<CommandBarObject>(session(), bar);
        }
        refuse_argument(member, "there is no command bar '" + *name + "'");
    }
    const std::int32_t position = automation::to_integer(index);
    if (position < 1 || position > count()) refuse_argument(member, "there is no such command bar");
    return std::make_shared<CommandBarObject>(session(), bars().bars[static_cast<std::size_t>(position - 1)]);
}

ObjectRef CommandBarsObject::add(const Value& name, const Value& position, const Value& menu_bar, const Value&) {
    auto bar = std::make_shared<CommandBar>();
    bar->name = value_or<std::string>(name, "Custom " + std::to_string(count() + 1));
    bar->position = value_or(position, msoBarTop);
    bar->type = bar->position == msoBarPopup ? msoBarTypePopup
                : value_or(menu_bar, false)  ? msoBarTypeMenuBar
                                             : msoBarTypeNormal;
    for (const auto& known : bars().bars) {
        if (automation::same_text(known->name, bar->name)) {
            refuse_argument("CommandBars.Add", "there is a command bar '" + bar->name + "' already");
        }
    }
    bars().bars.push_back(bar);
    return std::make_shared<CommandBarObject>(session(), bar);
}

ObjectRef CommandBarsObject::active_menu_bar() const {
    const Sheet* sheet = session().active_sheet();
    const bool chart = sheet && sheet->kind() == SheetKind::Chartsheet;
    return item(chart ? "Chart Menu Bar" : "Worksheet Menu Bar");
}

ObjectRef CommandBarsObject::action_control() const { return control_object(session(), bars().action_control.lock()); }

ObjectRef CommandBarsObject::find_control(const Value& type, const Value& id, const Value& tag,
                                          const Value& visible) const {
    const ControlSearch search(type, id, tag, visible, true);
    for (const auto& bar : bars().bars) {
        if (const auto found = search.find(*bar)) return control_object(session(), found);
    }
    return nullptr;
}

const MemberTable& CommandBarsObject::members() {
    using C = CommandBarsObject;
    static constexpr auto rows = automation::member_rows(
        enumeration<&C::new_enum>(), read_only<&C::item>("Item", 0, "Index"),
        read_only<&C::application>("Application", 1), read_only<&C::application>("Parent", 2),
        read_only<&C::count>("Count", 3), method<&C::add>("Add", 4, "[Name], [Position], [MenuBar], [Temporary]"),
        read_only<&C::active_menu_bar>("ActiveMenuBar", 5), read_only<&C::action_control>("ActionControl", 6),
        method<&C::find_control>("FindControl", 7, "[Type], [Id], [Tag], [Visible]"));
    static constexpr MemberTable table("CommandBars", rows);
    return table;
}

}  // namespace kestrune::host
