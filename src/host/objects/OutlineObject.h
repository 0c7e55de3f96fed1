#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// Worksheet.Outline: where summaries stand, and how many levels show.
class OutlineObject final : public HostObject<OutlineObject> {
  public:
    static const MemberTable& members();

    OutlineObject(HostSession& session, Sheet& sheet) : HostObject(session), sheet_(sheet) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t summary_row() const;  // xlSummaryBelow, xlSummaryAbove
    void set_summary_row(std::int32_t place);
    [[nodiscard]] std::int32_t summary_column() const;  // xlRight, xlLeft
    void set_summary_column(std::int32_t place);
    // Shows this many levels, 1 to 8: 1 hides everything grouped, 8 shows all. 0 and Missing leave them.
    void show_levels(const Value& row_levels, const Value& column_levels);

  private:
    Sheet& sheet_;
};

}  // namespace kestrune::host
