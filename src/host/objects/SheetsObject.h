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
    [[nodiscard]] ObjectRef new_enum() const;

  protected:
    [[nodiscard]] Workbook& workbook() const { return workbook_; }
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

    // New worksheets in front of a sheet or behind one, in front of the active one without either. The last one is
    // answered and active.
    ObjectRef add(const Value& before, const Value& after, const Value& count, const Value& type);
};

}  // namespace kestrune::host
