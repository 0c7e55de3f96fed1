#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

class WorkbookObject final : public HostObject<WorkbookObject> {
  public:
    static const MemberTable& members();

    WorkbookObject(HostSession& session, Workbook& workbook) : HostObject(session), workbook_(workbook) {}

    [[nodiscard]] std::string name() const { return workbook_.name; }
    [[nodiscard]] std::string path() const { return workbook_.path; }
    [[nodiscard]] std::string full_name() const;
    [[nodiscard]] ObjectRef worksheets() const;
    [[nodiscard]] ObjectRef sheets() const;
    [[nodiscard]] ObjectRef names() const;
    [[nodiscard]] ObjectRef windows() const;
    [[nodiscard]] ObjectRef active_sheet() const;
    void activate() { session().activate(workbook_); }
    // The palette, BGR: one of 1 to 56, or all of them as an array.
    [[nodiscard]] Value colors(const Value& index) const;
    void set_colors(const Value& index, const Value& color);
    void reset_colors();
    [[nodiscard]] bool saved() const { return session().opened(workbook_).saved; }
    void set_saved(bool saved) { session().opened(workbook_).saved = saved; }
    [[nodiscard]] bool protect_structure() const { return workbook_.structure_protected; }
    [[nodiscard]] bool date1904() const { return workbook_.date1904; }

  private:
    Workbook& workbook_;
};

}  // namespace kestrune::host
