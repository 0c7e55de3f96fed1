#pragma once

#include <functional>
#include <string_view>

#include "host/objects/HostSession.h"

namespace kestrune::host {

// One rule of a sheet's conditional formats, found again by its priority as long as it exists.
class ConditionRule {
  public:
    ConditionRule(HostSession& session, Sheet& sheet, std::int32_t priority)
        : session_(&session), sheet_(&sheet), priority_(priority) {}

    [[nodiscard]] HostSession& session() const { return *session_; }
    [[nodiscard]] Sheet& sheet() const { return *sheet_; }
    [[nodiscard]] Workbook& workbook() const { return sheet_->workbook(); }

    // Error 1004 when it has been deleted.
    [[nodiscard]] ConditionalRule& rule() const;
    [[nodiscard]] ConditionalFormat& format() const;  // the areas it holds for, with its sister rules

    // The components that it puts over a cell's own.
    [[nodiscard]] DifferentialFormat differential() const;
    void change_differential(std::string_view member, const std::function<void(DifferentialFormat&)>& change) const;

    // Before any change: refused on a protected sheet, and for a rule whose kind only other programs can make.
    void require_changeable(std::string_view member) const;
    // After a change: the rule is written from its fields.
    void changed() const;
    void remove();
    void set_priority(std::int32_t priority);

  private:
    HostSession* session_;
    Sheet* sheet_;
    std::int32_t priority_;
};

}  // namespace kestrune::host
