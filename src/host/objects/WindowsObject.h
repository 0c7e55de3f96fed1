#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// The windows of a workbook, which has one, or of the application: the active one first.
class WindowsObject final : public HostObject<WindowsObject> {
  public:
    static const MemberTable& members();

    // Without a workbook: all windows.
    WindowsObject(HostSession& session, Workbook* workbook) : HostObject(session), workbook_(workbook) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(list().size()); }
    [[nodiscard]] ObjectRef item(const Value& index) const;  // a number or a caption; otherwise error 9
    [[nodiscard]] ObjectRef new_enum() const;

  private:
    [[nodiscard]] std::vector<OpenWorkbook*> list() const;

    Workbook* workbook_;
};

}  // namespace kestrune::host
