#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

class WorkbookObject final : public HostObject<WorkbookObject> {
  public:
    static const MemberTable& members();

    WorkbookObject(HostSession& session, Workbook& workbook) : HostObject(session), workbook_(workbook) {}

    [[nodiscard]] const Workbook& home() const { return workbook_; }
    [[nodiscard]] std::string name() const { return workbook_.name; }
    [[nodiscard]] std::string path() const { return workbook_.path; }
    [[nodiscard]] std::string full_name() const { return host::full_name(workbook_); }
    [[nodiscard]] ObjectRef worksheets() const;
    [[nodiscard]] ObjectRef sheets() const;
    [[nodiscard]] ObjectRef names() const;
    [[nodiscard]] ObjectRef windows() const;
    [[nodiscard]] ObjectRef active_sheet() const;
    void activate() { session().activate(workbook_); }
    // The palette, BGR: one of 1 to 56, or all of them as an array.
    [[nodiscard]] Value colors(const Value& index) const;
    void set_colors(const Value& index, const Value& color);
    // The workbooks that formulas link to, as paths (XlLink: xlExcelLinks); Empty when there are none.
    [[nodiscard]] Value link_sources(const Value& type) const;
    [[nodiscard]] ObjectRef styles() const;
    void reset_colors();
    // What shows in it is General afterwards. Error 1004 for a built-in format and one that is not there.
    void delete_number_format(const std::string& code);
    [[nodiscard]] bool saved() const { return session().opened(workbook_).saved; }
    void set_saved(bool saved) { session().opened(workbook_).saved = saved; }
    // Writes it into the file that it came from; error 1004 when it came from none.
    void save();
    // SaveChanges left out asks the user in Excel. Nobody is there to ask: a workbook with changes stays open with
    // error 1004, unless the alerts are off, where Excel drops the changes as well.
    void close(const Value& save_changes, const Value& file_name, const Value& route);
    [[nodiscard]] bool protect_structure() const { return workbook_.structure_protected; }
    [[nodiscard]] bool date1904() const { return workbook_.date1904; }

  private:
    Workbook& workbook_;
};

}  // namespace kestrune::host
