#pragma once

#include "host/objects/SheetObject.h"

namespace kestrune::host {

class WorksheetObject final : public SheetObject<WorksheetObject> {
  public:
    static const MemberTable& members();

    WorksheetObject(HostSession& session, Sheet& sheet) : SheetObject(session, sheet) {}

    [[nodiscard]] ObjectRef range(const Value& cell1, const Value& cell2) const;
    [[nodiscard]] ObjectRef cells() const;
    [[nodiscard]] ObjectRef rows() const;
    [[nodiscard]] ObjectRef columns() const;
    [[nodiscard]] ObjectRef used_range() const;
    [[nodiscard]] ObjectRef names() const;
    [[nodiscard]] ObjectRef list_objects() const;
    [[nodiscard]] ObjectRef shapes() const;
    [[nodiscard]] ObjectRef outline() const;
    [[nodiscard]] ObjectRef hyperlinks() const;
    [[nodiscard]] ObjectRef protection() const;
    // Whether macros may change what the protection keeps from people. No file says so: it ends when Excel does.
    [[nodiscard]] bool protection_mode() const { return false; }
    [[nodiscard]] double standard_width() const;  // characters of the Normal font
    void set_standard_width(double characters);   // 0 to 255
    [[nodiscard]] double standard_height() const { return sheet().defaults().default_row_height; }  // points
    // What the arguments do not allow is error 1004 until Unprotect.
    void protect(const Value& password, const Value& drawing_objects, const Value& contents, const Value& scenarios,
                 const Value& user_interface_only, const Value& cells, const Value& columns, const Value& rows,
                 const Value& insert_columns, const Value& insert_rows, const Value& insert_hyperlinks,
                 const Value& delete_columns, const Value& delete_rows, const Value& sorting, const Value& filtering,
                 const Value& pivot_tables);
    void unprotect(const Value& password);      // error 1004 with another password than Protect's
    void set_visible(const Value& visibility);  // XlSheetVisibility; one sheet stays visible

  private:
    void require_protection_allowed(std::string_view member) const;
};

}  // namespace kestrune::host
