#pragma once

#include "host/objects/HostObject.h"

namespace kestrune::host {

// Workbook.Sheets and Workbook.Worksheets: the sheets in the order of their tabs, counted from 1, or by name.
template <class Derived>
class SheetList : public HostObject<Derived> {
  public:
    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const;
    [[nodiscard]] ObjectRef item(const Value& index) const;  // a number or a name; otherwise error 9

  protected:
    SheetList(HostSession& session, Workbook& workbook) : HostObject<Derived>(session), workbook_(workbook) {}

  private:
    [[nodiscard]] std::vector<Sheet*> list() const;

    Workbook& workbook_;
};

class SheetsObject final : public SheetList<SheetsObject> {
  public:
    static const MemberTable& members();
    static constexpr bool lists(SheetKind) { return true; }

    SheetsObject(HostSession& session, Workbook& workbook) : SheetList(session, workbook) {}
};

class WorksheetsObject final : public SheetList<WorksheetsObject> {
  public:
    static const MemberTable& members();
    static constexpr bool lists(SheetKind kind) { return kind == SheetKind::Worksheet; }

    WorksheetsObject(HostSession& session, Workbook& workbook) : SheetList(session, workbook) {}
};

}  // namespace kestrune::host
