#pragma once

#include <span>

#include "host/objects/HostObject.h"

namespace kestrune::host {

// Application.Workbooks: the open ones in the order of their opening, counted from 1, or by name.
class WorkbooksObject final : public HostObject<WorkbooksObject> {
  public:
    static const MemberTable& members();

    explicit WorkbooksObject(HostSession& session) : HostObject(session) {}

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(session().workbooks().size()); }
    [[nodiscard]] ObjectRef item(const Value& index) const;  // otherwise error 9
    [[nodiscard]] ObjectRef new_enum() const;
    // A workbook of one sheet, made the active one. A template is a file, or xlWBATWorksheet.
    ObjectRef add(const Value& template_file);
    // The file's workbook, made the active one; how the file is read is up to the session's store.
    ObjectRef open(std::span<const Value> arguments);
};

}  // namespace kestrune::host
