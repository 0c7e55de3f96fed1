#pragma once

#include <functional>
#include <string_view>

#include "host/objects/HostSession.h"

namespace kestrune::host {

// One rule of a sheet's conditional formats, known as long as it exists, whatever becomes of its priority.
class ConditionRule {
  public:
    // The rule that has this priority now.
    ConditionRule(HostSession& session, Sheet& sheet, std::int32_t priority);

    [[nodiscard]] HostSession& session() const { return *session_; }
    [[nodiscard]] Sheet& sheet() const { return *sheet_; }
    [[nodiscard]] Workbook& workbook() const { return sheet_->workbook(); }

    // Error 1004 when it has been deleted.
    [[nodiscard]] ConditionalRule& rule() const;
    [[nodiscard]] ConditionalFormat& format() const;  // the areas it holds for, with its sister rules

    // The components that it puts over a cell's own.
    [[nodiscard]] DifferentialFormat differential() const;
    void change_differential(std::string_view member, const std::function<void(DifferentialFormat&)>& change) const;

    // The cell that formulas are written for: the active one, or of a sheet that is not active the corner of the
    // rule's own cells, which is what they are stored and told for.
    [[nodiscard]] Position viewpoint() const;
    // Before it gets other cells, or goes: refused on a protected sheet.
    void require_allowed(std::string_view member) const;
    // Before any other change: refused as well for a rule whose kind only other programs can make.
    void require_changeable(std::string_view member) const;
    // After a change: the rule is written from its fields.
    void changed() const;
    // After it got other cells: it is written as it stood, for these.
    void moved() const;
    void remove();
    void set_priority(std::int32_t priority);

  private:
    HostSession* session_;
    Sheet* sheet_;
    std::int32_t handle_;
};

}  // namespace kestrune::host
