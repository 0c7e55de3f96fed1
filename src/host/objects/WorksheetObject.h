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
    [[nodiscard]] ObjectRef outline() const;
    [[nodiscard]] ObjectRef hyperlinks() const;
    [[nodiscard]] double standard_width() const;  // characters of the Normal font
    void set_standard_width(double characters);   // 0 to 255
    [[nodiscard]] double standard_height() const { return sheet().defaults().default_row_height; }  // points
    void set_visible(const Value& visibility);  // XlSheetVisibility; one sheet stays visible
};

}  // namespace kestrune::host
