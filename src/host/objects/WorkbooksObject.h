#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// Application.Workbooks: the open ones in the order of their opening, counted from 1, or by name.
class WorkbooksObject final : public HostObject<WorkbooksObject> {
  public:
    static const MemberTable& members();

    explicit WorkbooksObject(HostSession& session) : HostObject(session) {}

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(session().workbooks().size()); }
    [[nodiscard]] ObjectRef item(const Value& index) const;  // otherwise error 9
};

}  // namespace kestrune::host
