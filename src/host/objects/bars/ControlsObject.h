#pragma once

#include "host/objects/HostObject.h"
#include "host/objects/bars/CommandBars.h"

namespace kestrune::host {

// The controls of a bar or a popup, counted from 1, or by caption ("&" and case apart).
class ControlsObject final : public HostObject<ControlsObject> {
  public:
    static const MemberTable& members();

    ControlsObject(HostSession& session, std::shared_ptr<CommandBar> bar) : HostObject(session), bar_(std::move(bar)) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(bar_->controls.size()); }
    [[nodiscard]] ObjectRef item(const Value& index) const;
    [[nodiscard]] ObjectRef new_enum() const;
    // A button or a popup, in front of a position or at the end.
    ObjectRef add(const Value& type, const Value& id, const Value& parameter, const Value& before,
                  const Value& temporary);

  private:
    std::shared_ptr<CommandBar> bar_;
};

}  // namespace kestrune::host
