#pragma once

#include "host/model/Sheet.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// Worksheet.Protection: what a protected sheet lets people do all the same.
class ProtectionObject final : public HostObject<ProtectionObject> {
  public:
    static const MemberTable& members();

    ProtectionObject(HostSession& session, Sheet& sheet) : HostObject(session), sheet_(sheet) {}

    template <bool SheetProtection::*what>
    [[nodiscard]] bool allows() const {
        return sheet_.protection().*what;
    }

  private:
    Sheet& sheet_;
};

}  // namespace kestrune::host
