#pragma once

#include "host/objects/HostObject.h"
#include "host/objects/bars/CommandBars.h"

namespace kestrune::host {

// Application.CommandBars: counted from 1, or by name.
class CommandBarsObject final : public HostObject<CommandBarsObject> {
  public:
    static const MemberTable& members();

    explicit CommandBarsObject(HostSession& session) : HostObject(session) {}

    [[nodiscard]] std::int32_t count() const;
    [[nodiscard]] ObjectRef item(const Value& index) const;
    [[nodiscard]] ObjectRef new_enum() const;
    // A new bar, not visible yet. A name that there is already is refused.
    ObjectRef add(const Value& name, const Value& position, const Value& menu_bar, const Value& temporary);
    [[nodiscard]] ObjectRef active_menu_bar() const;
    [[nodiscard]] ObjectRef action_control() const;  // the control whose action runs; Nothing otherwise
    // The first control with this type, id and tag on any bar, its popups included; Nothing when there is none.
    [[nodiscard]] ObjectRef find_control(const Value& type, const Value& id, const Value& tag,
                                         const Value& visible) const;

  private:
    [[nodiscard]] CommandBars& bars() const;
};

}  // namespace kestrune::host
